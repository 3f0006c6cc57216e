#include <kiv/baseformatter.h>
#include <kiv/kivbackend.h>

#include <QSet>
#include <QtDebug>

namespace {

/// Service files and pages name formatters. The only other sign of a misspelt name is a missing unit.
void warnOnce(const QString& name)
{
    static QSet<QString> known;
    constexpr int mostRemembered = 1000;
    if (known.contains(name) || known.size() >= mostRemembered)
        return;
    known.insert(name);
    qWarning("There is no formatter \"%s\": values are shown without one.", qUtf8Printable(name.left(200)));
}

} // namespace

BaseFormatter::BaseFormatter(QObject* parent)
    : QObject(parent)
{
}

BaseFormatter::~BaseFormatter() = default;

BaseFormatter* getFormatter(const QString& name)
{
    const KIVBackend* backend = KIVBackend::current();
    BaseFormatter* formatter = backend ? backend->createFormatter(name) : nullptr;
    if (backend && !formatter && !name.isEmpty())
        warnOnce(name);
    return formatter;
}
