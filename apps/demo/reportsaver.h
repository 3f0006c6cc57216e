#pragma once

#include "document/reporttemplate.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace uiutils::demo {

/// Saves a report document as PDF, as a web page, as XML and as JSON in the instrument's report folder: all files or
/// none.
class ReportSaver : public QObject
{
    Q_OBJECT
    /// Where the saved files lie on this machine's disk, in the order of saving, each once.
    Q_PROPERTY(QStringList files READ files NOTIFY filesChanged)
    /// Why the last save failed: which file, what happened and what to do. Empty after a save that succeeded.
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)
    /// The folder that reports are saved in, on this machine's disk.
    Q_PROPERTY(QString folder READ folder CONSTANT)

public:
    explicit ReportSaver(QObject* parent = nullptr);

    QStringList files() const { return m_files; }
    QString errorText() const { return m_errorText; }
    QString folder() const;

    /// Writes `name`.pdf, `name`.html, `name`.xml and `name`.json and replaces files of these names. `writerAttributes` are
    /// switches of the writers of the pages and win over those set here. The report stays the caller's.
    ///
    /// Returns false, with the reason in errorText, when a file could not be written; the folder then holds
    /// what it held before.
    Q_INVOKABLE bool save(ReportTemplate* report, const QString& name, const QVariantMap& writerAttributes);

Q_SIGNALS:
    void filesChanged();
    void errorTextChanged();

private:
    bool refuse(const QString& reason);
    void setErrorText(const QString& text);
    void addFiles(const QStringList& paths);

    QStringList m_files;
    QString m_errorText;
};

} // namespace uiutils::demo
