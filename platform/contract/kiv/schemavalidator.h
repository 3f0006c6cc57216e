#pragma once

#include <kiv/kiv_export.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

/// Checks an XML text against an XML schema (XSD 1.0), for example a report before it is handed to a job manager.
///
/// **Trust**: the schema comes with the program, the text from anywhere. Nothing is fetched from a network. A text with
/// a document type declaration is refused when the declaration begins, so that it can neither name other files nor blow
/// up by entities; so is one with elements nested more than 256 deep. Schemas that a text hints at are passed over. A
/// schema may include and import files below its own folder only.
///
/// **Blocking**: both operations return when they are done; time grows with the size of the schema and of the text.
/// **Threads**: validators of different threads do not disturb each other; one validator belongs to one thread at a
/// time. Nothing is printed. The first validator puts a loader of its own in front of libxml2's external entity loader,
/// which goes on to serve everybody else in the process; who replaces it later hands on to the one before.
class KIV_EXPORT SchemaValidator
{
public:
    SchemaValidator();
    ~SchemaValidator();
    Q_DISABLE_COPY_MOVE(SchemaValidator)

    /// Reads the schema that texts are checked against from now on. False when the file cannot be read or is no schema:
    /// errors() says why, and until a schema is read no text is valid.
    bool setSchemaFile(const QString& path);

    /// Whether the text is well-formed and the schema allows it. False without a schema. The encoding is the one that
    /// the text declares, else UTF-8.
    bool validate(const QByteArray& xml);

    /// What the last operation found, in the order of the text, each with its line as "line 3: ..."; empty when all is
    /// well. At most 100 of them, and a last one that says how many more there are; long ones are cut.
    QStringList errors() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};
