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

QStringList sourcesIn(const QStringList& folders)
{
    QStringList sources;
    for (const QString& folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
        for (const QFileInfo& file : files)
            sources += file.filePath();
    }
    return sources;
}

} // namespace

PageTranslations::PageTranslations(const QString& page)
{
    const QDir place = QFileInfo(page).absoluteDir();
    for (const QString& beside : {QStringLiteral("../translations"), QStringLiteral("translations")}) {
        const QString folder = QDir::cleanPath(place.filePath(beside));
        if (!page.isEmpty() && QFileInfo(folder).isDir())
            m_folders += folder;
    }
    const QStringList sources = sourcesIn(m_folders);
    if (!sources.isEmpty())
        compile(sources);
}

PageTranslations::~PageTranslations() = default;

void PageTranslations::compile(const QStringList& sources)
{
    const QString program = compiler();
    if (program.isEmpty()) {
        m_problems += Texts::tr("The translations beside the page are not used: the program lrelease is not installed.");
        return;
    }
    m_compiled = std::make_unique<TemporaryFolder>(QDir::tempPath());
    if (m_compiled->path().isEmpty()) {
        m_problems += Texts::tr("The translations beside the page are not used: no file can be written in %1.")
                              .arg(QDir::tempPath());
        return;
    }
    m_folders += m_compiled->path();
    for (const QString& source : sources) {
        const QString target = m_compiled->filePath(QFileInfo(source).completeBaseName() + QStringLiteral(".qm"));
        QProcess process;
        process.start(program, {QStringLiteral("-silent"), source, QStringLiteral("-qm"), target});
        const bool isDone = process.waitForFinished() && process.exitCode() == 0 && QFileInfo::exists(target);
        if (!isDone)
            m_problems += Texts::tr("%1 cannot be compiled: %2")
                                  .arg(source, QString::fromLocal8Bit(process.readAllStandardError()).simplified());
    }
}

} // namespace uiutils::qmltool
