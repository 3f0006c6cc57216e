#include <kiv/schemachecker_p.h>
#include <kiv/schemavalidator.h>

#include "base/ownlibrary_p.h"

namespace {

struct Maker
{
    QString error;
    KivSchemaChecker make = reinterpret_cast<KivSchemaChecker>(
            uiutils::ownLibraryFunction("kiv", KIV_SCHEMA_LIBRARY, "kivSchemaChecker", &error));
};

const Maker& maker()
{
    static const Maker once;
    return once;
}

} // namespace

class SchemaValidator::Private
{
public:
    /// Null when the library that checks cannot be loaded.
    std::unique_ptr<SchemaChecker> checker {maker().make ? maker().make() : nullptr};
};

SchemaValidator::SchemaValidator()
    : d(std::make_unique<Private>())
{
}

SchemaValidator::~SchemaValidator() = default;

bool SchemaValidator::setSchemaFile(const QString& path)
{
    return d->checker && d->checker->setSchemaFile(path);
}

bool SchemaValidator::validate(const QByteArray& xml)
{
    return d->checker && d->checker->validate(xml);
}

QStringList SchemaValidator::errors() const
{
    return d->checker ? d->checker->errors() : QStringList(maker().error);
}
