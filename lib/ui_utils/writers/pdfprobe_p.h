#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// Tries a PDF file out before it is let into this process: PoDoFo goes down, hangs or swells on files that
/// are made for it, or torn in the wrong place. A helper program with bounded memory and time does first what
/// this process would do.
///
/// No events are processed meanwhile, and what the host does with SIGCHLD makes no difference.
class PdfProbe
{
public:
    /// The helper that was installed or built with this library, and all the time that it may take.
    PdfProbe();
    /// Another helper, by its path on disk, and the milliseconds after which it is ended.
    PdfProbe(const QString& helper, int patience);

    /// Whether a file of these contents can be loaded and written. When it cannot, `error` says why. Without
    /// a helper that can be started, every file passes, and the log says once that it does.
    bool passes(const QByteArray& contents, QString* error) const;

private:
    QString m_helper;
    int m_patience = 0;
};

} // namespace uiutils
