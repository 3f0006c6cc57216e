#pragma once

#include <QCommandLineOption>
#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace uiutils::apps {

/// The options --services and --root of a program that brings up services.
class ServiceOptions
{
public:
    /// `program` names the program's own default root; `rootHelp` says what is written below the root, "%1" in it is
    /// the default.
    ServiceOptions(const QString& program, const QString& rootHelp);

    QList<QCommandLineOption> all() const { return {m_services, m_root}; }

    /// Whether folders were given.
    bool areGiven(const QCommandLineParser& parser) const;
    /// The folders that were given, else the default ones.
    QStringList folders(const QCommandLineParser& parser) const;
    /// Absolute.
    QString root(const QCommandLineParser& parser) const;

private:
    const QString m_ownRoot;
    const QStringList m_ownFolders;
    const QCommandLineOption m_services;
    const QCommandLineOption m_root;
};

/// What is wrong when one of the options was given without a name; empty when none was.
QString missingName(const QCommandLineParser& parser, const QList<QCommandLineOption>& options);

} // namespace uiutils::apps
