#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// Tries a PDF file before it is loaded in this process: PoDoFo crashes, hangs or takes excessive memory on files that
/// are made for that, or damaged in certain places. A helper program with a maximum of memory and time first does what
/// this process would do.
///
/// Meanwhile no events are processed. What the host does with SIGCHLD makes no difference.
class PdfProbe
{
public:
    /// The maximum of milliseconds for trying a file and then loading it: a second, less what a busy machine adds.
    static constexpr int patience = 750;

    /// The helper that was installed or built with this library.
    explicit PdfProbe(int patience = PdfProbe::patience);
    /// Another helper, by its path on the disk.
    PdfProbe(const QString& helper, int patience);

    /// Whether a file of these contents can be loaded and written, and loaded in the time that remains after that. If
    /// not, or if the helper gives no answer, `error` says why. If no helper is installed, every file passes, and the
    /// log says so once.
    bool passes(const QByteArray& contents, QString* error) const;

private:
    QString problemOf(const QByteArray& contents) const;

    QString m_helper;
    int m_patience;
};

} // namespace uiutils
