#include "case.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <embedded/embeddedbackend.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], bench::firstFileArgument) == 0)
        return bench::printFirstFile();
    if (argc == 2 && qstrcmp(argv[1], bench::wholeDocumentArgument) == 0)
        return bench::writeWholeDocument();
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    // In the order in which they are measured: behind the bindings, documents and texts take a third longer.
    const bench::Options options
            = bench::readOptions(QStringLiteral("Measures the library against floors in the same run."),
                    {{"document", bench::documentCases}, {"html", bench::htmlCases}, {"pdf", bench::pdfCases},
                            {"plot", bench::plotCases}, {"liveplot", bench::livePlotCases}, {"xml", bench::xmlCases}, {"text", bench::textCases},
                            {"binding", bench::bindingCases}, {"local", bench::localCases},
                            {"pdffile", bench::pdfFileCases}, {"report", bench::reportCases}});
    kiv::embedded::EmbeddedBackend backend;
    if (!backend.loadFolders({QStringLiteral(UIUTILS_SERVICES_DIR)}).isEmpty())
        qFatal("the services cannot be used");
    return bench::measureRooms(options);
}
