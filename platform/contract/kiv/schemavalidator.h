#pragma once

#include <kiv/kiv_export.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

/// Checks an XML text against an XML schema (XSD 1.0), for example a report before it is handed to a job manager.
///
/// **Trust**: the schema comes with the program, the text from anywhere. Nothing is fetched from a network. A text with
/// a document type declaration is rejected when the declaration begins, so that it can neither name other files nor
/// expand entities without end; so is a text with elements nested more than 256 deep. Schemas that a text names are
/// ignored. A schema may include and import files only from below its own folder.
///
/// **Blocking**: both operations return when they are done; the time grows with the size of the schema and of the text.
/// **Threads**: validators of different threads do not disturb each other; one validator belongs to one thread at a
/// time. Nothing is printed. The first validator installs a loader in front of libxml2's external entity loader, which
/// continues to serve the rest of the process; code that replaces the loader later must call the previous one.
class KIV_EXPORT SchemaValidator
{
public:
    /// A validator without a schema, for which every text is invalid.
    SchemaValidator();
    ~SchemaValidator();
    Q_DISABLE_COPY_MOVE(SchemaValidator)

    /// Reads the schema for later checks. False when the file cannot be read or is not a schema: errors() then says
    /// why, and every text is invalid until a schema is read.
    [[nodiscard]] bool setSchemaFile(const QString& path);

    /// Whether the text is well-formed and the schema allows it. False without a schema. The encoding is the one that
    /// the text declares, otherwise UTF-8.
    [[nodiscard]] bool validate(const QByteArray& xml);

    /// The errors of the last operation, in the order of the text, each with its line as in "line 3: ..."; empty after
    /// a success. At most 100, and one more that gives the number of the remaining ones; long ones are cut.
    QStringList errors() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};
