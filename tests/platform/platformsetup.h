#pragma once

#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

/// Creates a back end for the platform suite, which runs unchanged over every one, and drives its services from their
/// own side. A back end's own source file defines create(). Each call returns whether the service could do it.
class PlatformSetup
{
public:
    /// Attributes that a service reports for an item besides its value.
    enum class Answer
    {
        Ready,
        Quality,
        Unit,
        Applicable,
        Refusal
    };
    struct Choice
    {
        int value;
        QString name;
    };

    /// The back end with the services of the given files; null on failure.
    static std::unique_ptr<PlatformSetup> create(const QStringList& serviceFiles);
    virtual ~PlatformSetup() = default;

    /// The service reports a value that no client requested.
    virtual bool report(const QString& service, const QString& id, const QVariant& value) = 0;
    virtual bool change(const QString& service, const QString& id, Answer answer, const QVariant& value) = 0;
    virtual bool setChoices(const QString& service, const QString& id, const QVector<Choice>& choices) = 0;

    virtual bool addItem(const QString& service, const QString& id, const QString& type, const QVariant& value) = 0;
    virtual bool removeItem(const QString& service, const QString& id) = 0;
    virtual bool setReachable(const QString& service, bool isReachable) = 0;

    virtual bool setMounted(const QString& service, const QString& path, bool isMounted) = 0;

    virtual bool reportError(const QString& service, const QString& text) = 0;
    /// How long the service takes to answer a call, in milliseconds.
    virtual bool setDelay(const QString& service, int ms) = 0;
};
