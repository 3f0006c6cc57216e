#include "pagetranslations.h"

#include "texts.h"

#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QStandardPaths>

namespace uiutils::qmltool {

namespace {

QString compiler()
{
    const QString name = QStringLiteral("lrelease");
    const QString ofQt = QStandardPaths::findExecutable(name, {QLibraryInfo::location(QLibraryInfo::BinariesPath)});
    return ofQt.isEmpty() ? QStandardPaths::findExecutable(name) : ofQt;
}

QFileInfoList sourcesIn(const QString& folder)
{
    return QDir(folder).entryInfoList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
}

QStringList thatExist(const QStringList& folders)
{
    QStringList existing;
    for (const QString& folder : folders) {
        if (QFileInfo(folder).isDir())
            existing += QDir::cleanPath(folder);
    }
    return existing;
}

} // namespace

Translations::Translations(const QStringList& folders)
    : m_sources(folders)
{
    if (std::any_of(
                folders.cbegin(), folders.cend(), [](const QString& folder) { return !sourcesIn(folder).isEmpty(); }))
        compile();
}

Translations::~Translations() = default;

/// Catalogues of different folders may have the same name.
QStringList Translations::folders() const
{
    QStringList all;
    for (int i = 0; i < m_sources.size(); ++i) {
        all += m_sources.at(i);
        if (m_compiled)
            all += m_compiled->filePath(QString::number(i));
    }
    return all;
}

void Translations::follow(const std::function<void()>& compiled)
{
    m_watch = std::make_unique<FolderWatch>(m_sources, QStringList(QStringLiteral("*.ts")), FolderWatch::ThisFolder,
            [this, compiled](const QStringList&, bool) {
                compile();
                compiled();
            });
}

void Translations::compile()
{
    m_problems.clear();
    const QString program = compiler();
    if (program.isEmpty()) {
        m_problems += Texts::tr("The translations in %1 are not used: the program lrelease is not installed (package "
                                "qttools5-dev-tools).")
                              .arg(m_sources.join(QStringLiteral(", ")));
        return;
    }
    if (!m_compiled)
        m_compiled = std::make_unique<TemporaryFolder>(QDir::tempPath());
    if (m_compiled->path().isEmpty()) {
        m_compiled.reset();
        m_problems += Texts::tr("The translations in %1 are not used: no file can be written in %2.")
                              .arg(m_sources.join(QStringLiteral(", ")), QDir::tempPath());
        return;
    }
    for (int i = 0; i < m_sources.size(); ++i) {
        const QString folder = m_compiled->filePath(QString::number(i));
        QDir(folder).removeRecursively();
        QDir().mkdir(folder);
        const QFileInfoList files = sourcesIn(m_sources.at(i));
        for (const QFileInfo& file : files)
            compile(program, file.filePath(),
                    folder + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".qm"));
    }
}

void Translations::compile(const QString& program, const QString& source, const QString& target)
{
    QProcess process;
    process.start(program, {QStringLiteral("-silent"), source, QStringLiteral("-qm"), target});
    const bool isDone = process.waitForFinished() && process.exitCode() == 0 && QFileInfo::exists(target);
    if (!isDone)
        m_problems += Texts::tr("%1 cannot be compiled: %2")
                              .arg(source, QString::fromLocal8Bit(process.readAllStandardError()).simplified());
}

QStringList translationsOfPage(const QString& page)
{
    if (page.isEmpty())
        return QStringList();
    const QDir place = QFileInfo(page).absoluteDir();
    return thatExist(
            {place.filePath(QStringLiteral("../translations")), place.filePath(QStringLiteral("translations"))});
}

QStringList translationsOfServices(const QStringList& folders)
{
    QStringList beside;
    for (const QString& folder : folders)
        beside += folder + QStringLiteral("/translations");
    return thatExist(beside);
}

} // namespace uiutils::qmltool
