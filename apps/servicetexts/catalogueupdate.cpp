#include "servicetexts/catalogueupdate.h"

#include "base/durablefile_p.h"
#include "base/servicetext_p.h"

#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace uiutils::servicetexts {

namespace {

/// In the note of a message; a label that hundreds of items share needs no more.
constexpr int mostPlaces = 4;

/// A message that is told apart from others of the same text by the id of an item.
struct Told
{
    QString text;
    QString id;
};

QString updater()
{
    const QString name = QStringLiteral("lupdate");
    const QString ofQt = QStandardPaths::findExecutable(name, {QLibraryInfo::location(QLibraryInfo::BinariesPath)});
    return ofQt.isEmpty() ? QStandardPaths::findExecutable(name) : ofQt;
}

/// As a literal in a source, in UTF-8.
QByteArray literal(const QString& text)
{
    QByteArray written("\"");
    const QByteArray bytes = text.toUtf8();
    for (const char c : bytes) {
        if (c == '"' || c == '\\')
            written += '\\';
        if (c == '\n')
            written += "\\n";
        else if (c == '\t')
            written += "\\t";
        else if (uchar(c) >= ' ')
            written += c;
    }
    return written + '"';
}

/// In one line, so that the source stays what it is.
QByteArray note(const Uses& uses)
{
    QString text = QStringList(uses.places.mid(0, mostPlaces)).join(QStringLiteral("; "));
    if (uses.places.size() > mostPlaces)
        text += QStringLiteral(" and %1 more").arg(uses.places.size() - mostPlaces);
    // A backslash at the end would make the next line a part of the note.
    return text.replace(QLatin1Char('\\'), QLatin1Char('/')).simplified().toUtf8();
}

/// The texts as a source that lupdate reads.
QByteArray sourceOf(const ServiceTexts& texts, const QVector<Told>& toldApart)
{
    QByteArray source;
    const auto add = [&source](const QString& text, const QString& id) {
        source += "const char* text[] = QT_TRANSLATE_NOOP3(\"" + QByteArray(serviceContext) + "\", " + literal(text)
                + ", " + literal(id) + ");\n";
    };
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        source += "//: " + note(*it) + '\n';
        add(it.key(), QString());
    }
    for (const Told& told : toldApart) {
        if (texts.value(told.text).ids.contains(told.id))
            add(told.text, told.id);
    }
    return source;
}

/// What translators have told apart in a catalogue. Returns false, with the reason, for a catalogue that is not one of
/// services.
bool readCatalogue(const QString& path, QVector<Told>* toldApart, QString* problem)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = QStringLiteral("%1 cannot be read: %2.").arg(path, file.errorString());
        return false;
    }
    QXmlStreamReader xml(&file);
    Told told;
    bool isCatalogue = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement() && xml.name() == QLatin1String("message") && !told.id.isEmpty())
            *toldApart += told;
        if (!xml.isStartElement())
            continue;
        if (!isCatalogue && xml.name() != QLatin1String("TS"))
            break;
        isCatalogue = true;
        if (xml.name() == QLatin1String("message")) {
            told = Told();
        } else if (xml.name() == QLatin1String("source")) {
            told.text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.name() == QLatin1String("comment")) {
            told.id = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.name() == QLatin1String("name")) {
            const QString context = xml.readElementText();
            if (context == QLatin1String(serviceContext))
                continue;
            *problem = QStringLiteral("%1 has messages of \"%2\", which no service says, and stays as it is. Give the "
                                      "services a catalogue of their own, in \"translations\" beside their files.")
                               .arg(path, context);
            return false;
        }
    }
    if (isCatalogue && !xml.hasError())
        return true;
    *problem = xml.hasError() ? QStringLiteral("%1:%2:%3: the catalogue cannot be read and stays as it is: %4")
                                        .arg(path)
                                        .arg(xml.lineNumber())
                                        .arg(xml.columnNumber() + 1)
                                        .arg(xml.errorString())
                              : QStringLiteral("%1 is no catalogue of translators and stays as it is.").arg(path);
    return false;
}

/// Runs lupdate over a copy, so that a failure leaves the catalogue as it was.
bool update(
        const QString& program, const QString& catalogue, const QByteArray& source, QString* summary, QString* problem)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(catalogue).fileName());
    const QString texts = folder.filePath(QStringLiteral("texts.cpp"));
    const bool isCopied = !QFileInfo::exists(catalogue) || QFile::copy(catalogue, copy);
    if (!folder.isValid() || !isCopied || !writeFileForNow(texts, source)) {
        *problem = QStringLiteral("%1 stays as it is: no file can be written in %2.").arg(catalogue, folder.path());
        return false;
    }
    QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
    QProcess lupdate;
    lupdate.start(program,
            {QStringLiteral("-locations"), QStringLiteral("none"), QStringLiteral("-source-language"),
                    QStringLiteral("en"), texts, QStringLiteral("-ts"), copy});
    QFile result(copy);
    const bool isDone = lupdate.waitForFinished(-1) && lupdate.exitStatus() == QProcess::NormalExit
            && lupdate.exitCode() == 0 && result.open(QIODevice::ReadOnly);
    if (!isDone) {
        *problem = QStringLiteral("%1 stays as it is: lupdate failed: %2")
                           .arg(catalogue, QString::fromLocal8Bit(lupdate.readAllStandardError()).simplified());
        return false;
    }
    static const QRegularExpression counts(QStringLiteral("Found .*"));
    *summary = counts.match(QString::fromLocal8Bit(lupdate.readAllStandardOutput())).captured();
    // "translations" beside new service files. If it cannot be created, writing says why.
    makeFolderDurably(QFileInfo(catalogue).absolutePath());
    const QString linked = QFileInfo(catalogue).canonicalFilePath();
    return writeFileDurably(linked.isEmpty() ? catalogue : linked, result.readAll(), problem);
}

} // namespace

QStringList updateCatalogues(const QStringList& catalogues, const ServiceTexts& texts, QStringList* problems)
{
    QStringList summaries;
    const QString program = updater();
    if (program.isEmpty()) {
        *problems += QStringLiteral("The program lupdate is not installed. Install the package qttools5-dev-tools.");
        return summaries;
    }
    static const QRegularExpression form(QStringLiteral("^.+_[a-z]{2,3}(_[A-Z0-9][A-Za-z0-9]*)*\\.ts$"));
    for (const QString& catalogue : catalogues) {
        QString problem;
        QString summary;
        QVector<Told> toldApart;
        if (!form.match(QFileInfo(catalogue).fileName()).hasMatch())
            problem = QStringLiteral("%1 does not say its language. Name it NAME_LANGUAGE.ts, such as optical_de.ts.")
                              .arg(catalogue);
        else if (!QFileInfo::exists(catalogue) || readCatalogue(catalogue, &toldApart, &problem))
            update(program, catalogue, sourceOf(texts, toldApart), &summary, &problem);
        if (problem.isEmpty())
            summaries += catalogue + QStringLiteral(": ") + summary;
        else
            *problems += problem;
    }
    return summaries;
}

} // namespace uiutils::servicetexts
