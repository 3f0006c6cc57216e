#pragma once

#include "core/uiutils_export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace uiutils {
class PDFFilePrivate;
}

/// The document information of a PDF file: reads it, changes it and writes the file back. Pages are left
/// alone.
///
/// Paths are the instrument's. What fails is said in the log. Files come from memory sticks, so each is tried
/// out in a process of its own before it is loaded; what is no regular file, has more than 64 MiB, asks for a
/// password, or takes too long for setFilename() to return within a second, is not. An encrypted file that opens
/// without a password is read, and not written.
class UIUTILS_EXPORT PDFFile : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString filename READ getFilename WRITE setFilename NOTIFY filenameChanged)
    Q_PROPERTY(QString title READ getTitle WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString author READ getAuthor WRITE setAuthor NOTIFY authorChanged)
    Q_PROPERTY(QString subject READ getSubject WRITE setSubject NOTIFY subjectChanged)
    Q_PROPERTY(QString producer READ getProducer WRITE setProducer NOTIFY producerChanged)
    Q_PROPERTY(QString creationDate READ getCreationDate)

public:
    explicit PDFFile(QObject* parent = nullptr);
    ~PDFFile() override;

    QString getFilename() const;
    /// Loads the file anew, also when the path is the one it had. When the file cannot be loaded, no document
    /// is held. Emits filenameChanged() in any case, and nothing else: what the properties say has changed
    /// with the file.
    void setFilename(const QString& path);

    /// Empty while no document is held, and where the document has no such entry or one that is not a text.
    QString getTitle() const;
    QString getAuthor() const;
    QString getSubject() const;
    QString getProducer() const;
    /// In local time, as the default locale writes a long date; empty when the file has none that can be
    /// read.
    QString getCreationDate() const;

    /// Change the document that is held, not the file. The signal is emitted when there is a document and the
    /// change was made.
    void setTitle(const QString& title);
    void setAuthor(const QString& author);
    void setSubject(const QString& subject);
    void setProducer(const QString& producer);

    /// Any entry; empty when there is none, or one that is not a text.
    QString getMetaData(const QString& key) const;
    /// Adds or replaces any entry of the document that is held. Keys that a file cannot hold change nothing:
    /// empty ones, those with control characters, and those of more than 127 bytes.
    Q_INVOKABLE void setMetaData(const QString& key, const QString& value);

    /// Writes the document to `filename`, or to the file that it was loaded from when that is empty; with no
    /// document does nothing. The file then holds the whole document or, when that failed, what it held
    /// before. On the way to the file that was loaded, the document has that file's name with "_tmp.pdf" for
    /// ".pdf", and what is there goes.
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
