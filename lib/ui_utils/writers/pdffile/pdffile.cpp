#include "writers/pdffile/pdffile.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "writers/pdffile/pdfdate_p.h"
#include "writers/pdffile/pdfengine_p.h"
#include "writers/pdffile/pdfprobe_p.h"
#include "writers/pdffile/pdftexts_p.h"
#include "writers/pdffile/pdfupdate_p.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace pdf = uiutils::pdf;

namespace {

constexpr qint64 largestFile = qint64(64) * 1024 * 1024;
/// The maximum of bytes in a name in a PDF file, and in a file name.
constexpr int longestKey = 127;
constexpr int longestFileName = 255;

void report(QLatin1String failure, const QString& reason)
{
    qDebug().noquote() << failure + reason;
}

bool statusOf(const QString& path, struct stat* status)
{
    return !path.contains(QChar(QChar::Null)) && ::stat(QFile::encodeName(path).constData(), status) == 0;
}

/// Why the file is not to be read. Checked before it is opened, because opening a pipe waits, and opening a device may
/// have effects.
QString rejectionOf(const QString& path)
{
    struct stat status = {};
    if (path.contains(QChar(QChar::Null)))
        return pdf::PdfFileTexts::tr("The path contains a NUL character");
    if (!statusOf(path, &status))
        return qt_error_string(errno);
    if (!S_ISREG(status.st_mode))
        return pdf::PdfFileTexts::tr("It is not a regular file");
    if (status.st_size > largestFile)
        return pdf::PdfFileTexts::tr("It has more than 64 MiB");
    return QString();
}

/// The contents of the file; nothing, with `error` set, if it cannot or must not be read, or not within the time.
QByteArray read(const QString& path, const QDeadlineTimer& deadline, QString* error)
{
    constexpr int portion = 1024 * 1024;
    *error = rejectionOf(path);
    QFile file(path);
    QByteArray contents;
    if (!error->isEmpty())
        return contents;
    file.open(QIODevice::ReadOnly);
    while (file.error() == QFileDevice::NoError && !file.atEnd() && contents.size() < largestFile
            && !deadline.hasExpired())
        contents += file.read(portion);
    if (file.error() != QFileDevice::NoError)
        *error = file.errorString();
    else if (deadline.hasExpired())
        *error = pdf::PdfFileTexts::tr("Reading the file takes too long");
    return contents;
}

std::unique_ptr<pdf::DescribedFile> loadUntrusted(const QString& path, QString* error)
{
    // Reading gets a third of the time, so that the file can still be tried and loaded.
    const QDeadlineTimer deadline(uiutils::PdfProbe::patience);
    const QByteArray contents = read(path, QDeadlineTimer(uiutils::PdfProbe::patience / 3), error);
    if (!error->isEmpty())
        return nullptr;
    if (auto file = pdf::openForUpdate(contents))
        return file;
    // The bytes that were tried are the bytes that are loaded, whatever happens to the file.
    if (!uiutils::PdfProbe(int(deadline.remainingTime())).passes(contents, error))
        return nullptr;
    return pdf::load(contents, error);
}

bool isSameFile(const QString& path, const QString& other)
{
    struct stat one = {};
    struct stat two = {};
    if (statusOf(path, &one) && statusOf(other, &two))
        return one.st_dev == two.st_dev && one.st_ino == two.st_ino;
    return QDir::cleanPath(path) == QDir::cleanPath(other);
}

QString temporaryNameFor(const QString& path)
{
    QString name = path;
    if (name.endsWith(QLatin1String(".pdf")))
        name.chop(4);
    name += QLatin1String("_tmp.pdf");
    const bool fits = QFile::encodeName(QFileInfo(name).fileName()).size() <= longestFileName;
    return fits ? name : QString();
}

bool isUsableKey(const QString& key)
{
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    return !key.isEmpty() && key.toUtf8().size() <= longestKey && std::none_of(key.begin(), key.end(), isControl);
}

} // namespace

/// The file, and the document that was loaded from it; null while there is none.
class uiutils::PDFFilePrivate
{
public:
    bool change(const QString& key, const QString& value, QLatin1String failure);
    bool writeTo(const QString& path, QString* error);

    QString filename;
    std::unique_ptr<pdf::DescribedFile> document;
};

using uiutils::PDFFilePrivate;

PDFFile::PDFFile(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<PDFFilePrivate>())
{
}

PDFFile::~PDFFile() = default;

QString PDFFile::getFilename() const
{
    return d->filename;
}

void PDFFile::setFilename(const QString& path)
{
    QString error;
    d->document.reset();
    d->document = loadUntrusted(uiutils::onDisk(path), &error);
    if (!d->document)
        report(QLatin1String("Unable to write PDF report: "), error);
    d->filename = path;
    Q_EMIT filenameChanged();
}

QString PDFFile::getTitle() const
{
    return getMetaData(QStringLiteral("Title"));
}

QString PDFFile::getAuthor() const
{
    return getMetaData(QStringLiteral("Author"));
}

QString PDFFile::getSubject() const
{
    return getMetaData(QStringLiteral("Subject"));
}

QString PDFFile::getProducer() const
{
    return getMetaData(QStringLiteral("Producer"));
}

QString PDFFile::getCreationDate() const
{
    const QDateTime created = pdf::dateTime(getMetaData(QStringLiteral("CreationDate")));
    return created.isValid() ? QLocale().toString(created.toLocalTime(), QLocale::LongFormat) : QString();
}

void PDFFile::setTitle(const QString& title)
{
    if (d->change(QStringLiteral("Title"), title, QLatin1String("Unable to set title: ")))
        Q_EMIT titleChanged();
}

void PDFFile::setAuthor(const QString& author)
{
    if (d->change(QStringLiteral("Author"), author, QLatin1String("Unable to set author: ")))
        Q_EMIT authorChanged();
}

void PDFFile::setSubject(const QString& subject)
{
    if (d->change(QStringLiteral("Subject"), subject, QLatin1String("Unable to set subject: ")))
        Q_EMIT subjectChanged();
}

void PDFFile::setProducer(const QString& producer)
{
    if (d->change(QStringLiteral("Producer"), producer, QLatin1String("Unable to set producer: ")))
        Q_EMIT producerChanged();
}

bool PDFFilePrivate::change(const QString& key, const QString& value, QLatin1String failure)
{
    if (!document)
        return false;
    QString error;
    if (document->setEntry(key, value, &error))
        return true;
    report(failure, error);
    return false;
}

QString PDFFile::getMetaData(const QString& key) const
{
    return d->document ? d->document->entry(key) : QString();
}

void PDFFile::setMetaData(const QString& key, const QString& value)
{
    if (!d->document || !isUsableKey(key))
        return;
    QString error;
    if (!d->document->setEntry(key, value, &error))
        report(QLatin1String("Unable to set metadata: "), error);
}

void PDFFile::write(const QString& filename)
{
    if (!d->document)
        return;
    QString error;
    if (!d->writeTo(filename.isEmpty() ? d->filename : filename, &error))
        report(QLatin1String("Unable to write file: "), error);
}

bool PDFFilePrivate::writeTo(const QString& path, QString* error)
{
    // Written in memory first, because the parser does not notice a full disk.
    const QByteArray contents = pdf::saved(*document, error);
    if (contents.isEmpty())
        return false;
    const QString target = uiutils::onDisk(path);
    const bool own = isSameFile(target, uiutils::onDisk(filename));
    return uiutils::writeFileDurably(target, contents, error, own ? temporaryNameFor(target) : QString());
}
