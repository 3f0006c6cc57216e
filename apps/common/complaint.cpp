#include "common/complaint.h"

#include <QCoreApplication>

#include <cstdio>

namespace uiutils::apps {

int complain(const QString& text, int exitCode)
{
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(QCoreApplication::applicationName()), qUtf8Printable(text));
    return exitCode;
}

} // namespace uiutils::apps
