#pragma once

#include "check/finding.h"

#include <QObject>
#include <QQmlError>
#include <QStringList>
#include <QVector>

class QQmlEngine;

namespace uiutils::qmltool {

/// What an engine says about the files of a page while the page runs.
///
/// Only messages with a place in a file of the user's count: those about files of this library and of Qt are not the
/// page's, and what programs write into the log themselves is no mistake of a page.
class PageLog : public QObject
{
    Q_OBJECT

public:
    /// `page` as it was named on the command line.
    explicit PageLog(const QString& page);

    /// Listens to the engine, whose messages are printed no longer if `isQuiet`.
    void follow(QQmlEngine* engine, bool isQuiet);
    /// Enters why the page was not loaded.
    void add(const QList<QQmlError>& errors);

    /// The same for what has no place in a file; nothing if the text is empty.
    void addProblem(const QString& problem);
    void clear() { m_findings.clear(); }

    const QVector<check::Finding>& findings() const { return m_findings; }
    bool hasErrors() const;

private:
    const QString m_page;
    QVector<check::Finding> m_findings;
};

} // namespace uiutils::qmltool
