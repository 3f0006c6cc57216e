#pragma once

#include "core/uiutils_export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace uiutils {
class PDFFilePrivate;
}

/// The document information of a PDF file: reads it, changes it and writes the file back. Pages are not changed.
///
/// Paths are the instrument's. If something fails, the log has a line. Files come from USB drives, so each is tried in
/// a process of its own before it is loaded; of a file that the library wrote only the end is read, and changes are
/// added to it. A file is rejected if it is not a regular file, has more than 64 MiB, asks
/// for a password, or takes so long that setFilename() would not return within a second. An encrypted file that opens
/// without a password is read, but not written.
class UIUTILS_EXPORT PDFFile : public QObject
{
    Q_OBJECT
    /// The file that the document was loaded from. Writing loads a file and emits filenameChanged() in any case.
    Q_PROPERTY(QString filename READ getFilename WRITE setFilename NOTIFY filenameChanged)
    /// An entry of the document that is held; empty without one.
    Q_PROPERTY(QString title READ getTitle WRITE setTitle NOTIFY titleChanged)
    /// See `title`.
    Q_PROPERTY(QString author READ getAuthor WRITE setAuthor NOTIFY authorChanged)
    /// See `title`.
    Q_PROPERTY(QString subject READ getSubject WRITE setSubject NOTIFY subjectChanged)
    /// See `title`.
    Q_PROPERTY(QString producer READ getProducer WRITE setProducer NOTIFY producerChanged)
    /// In local time, in the long format of the default locale; empty if the file has no date that can be read.
    Q_PROPERTY(QString creationDate READ getCreationDate)

public:
    explicit PDFFile(QObject* parent = nullptr);
    ~PDFFile() override;

    QString getFilename() const;
    /// Loads the file, again if the path is the same. If the file cannot be loaded, no document is held. Emits
    /// filenameChanged() in any case and nothing else, although the other properties change with the file.
    void setFilename(const QString& path);

    /// Empty while no document is held, and if the document has no such entry or one that is not a text.
    QString getTitle() const;
    QString getAuthor() const;
    QString getSubject() const;
    QString getProducer() const;
    /// In local time, in the long format of the default locale; empty if the file has no date that can be read.
    QString getCreationDate() const;

    /// Changes the document that is held, not the file. The signal is emitted if there is a document and the change was
    /// made.
    void setTitle(const QString& title);
    void setAuthor(const QString& author);
    void setSubject(const QString& subject);
    void setProducer(const QString& producer);

    /// Any entry; empty if there is none, or one that is not a text.
    QString getMetaData(const QString& key) const;
    /// Adds or replaces any entry of the document that is held. Keys that a file cannot contain are rejected: empty
    /// ones, those with control characters, and those of more than 127 bytes.
    Q_INVOKABLE void setMetaData(const QString& key, const QString& value);

    /// Writes the document to `filename`; if that is empty, to the file that it was loaded from. Does nothing without a
    /// document. The file then holds the complete document or, if that failed, what it held before. A file that was
    /// loaded is written through a temporary one, which has "_tmp.pdf" in place of ".pdf" and replaces a file of that
    /// name.
    Q_INVOKABLE void write(const QString& filename);

Q_SIGNALS:
    void filenameChanged();
    void titleChanged();
    void authorChanged();
    void subjectChanged();
    void producerChanged();

private:
    const std::unique_ptr<uiutils::PDFFilePrivate> d;
};
