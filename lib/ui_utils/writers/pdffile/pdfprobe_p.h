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
    /// The milliseconds that trying a file out and loading it afterwards may take together: a second, less what a busy
    /// machine adds.
    static constexpr int patience = 750;

    /// The helper that was installed or built with this library.
    explicit PdfProbe(int patience = PdfProbe::patience);
    /// Another helper, by its path on disk.
    PdfProbe(const QString& helper, int patience);

    /// Whether a file of these contents can be loaded and written, and loaded within the patience that is left then.
    /// When it cannot, or the helper gives no answer, `error` says why. Where no helper was installed, every file
    /// passes, and the log says once that it does.
    bool passes(const QByteArray& contents, QString* error) const;

private:
    QString problemOf(const QByteArray& contents) const;

    QString m_helper;
    int m_patience;
};

} // namespace uiutils
