#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What checks for a SchemaValidator. It lies in a library of its own, which is loaded when the first validator is
/// made: libxml2, which it links, took a third of what the libraries add to the start of a page.
class SchemaChecker
{
public:
    SchemaChecker() = default;
    virtual ~SchemaChecker() = default;
    Q_DISABLE_COPY_MOVE(SchemaChecker)

    /// As the operations of SchemaValidator.
    virtual bool setSchemaFile(const QString& path) = 0;
    virtual bool validate(const QByteArray& xml) = 0;
    virtual QStringList errors() const = 0;
};

extern "C" {
/// What the library exports: makes a checker, which the caller owns.
using KivSchemaChecker = SchemaChecker* (*)();
}
