#include "options.h"

#include "texts.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace uiutils::viewer {

namespace {

constexpr int mostDotsPerInch = 600;

Options misused(const QString& message)
{
    return apps::ended<Options>(apps::misused(message));
}

/// A title is one line, whatever the report is called.
QString titleOf(const QString& asked, const QString& file)
{
    const QString title = asked.simplified();
    return title.isEmpty() ? QFileInfo(file).fileName() : title;
}

QString description()
{
    return Texts::tr("Shows a PDF file, also one that is compressed (.pdf.gz), on a touch screen or in a window.\n\n"
                     "Exit status: 0 done, 1 the file could not be shown, 2 wrong command line.");
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    const Options standard;
    QCommandLineParser parser;
    // Words after one hyphen, as Qt has them for its plug-ins.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(description());
    parser.addPositionalArgument(
            QStringLiteral("file"), Texts::tr("The PDF file to show."), QStringLiteral("file.pdf"));
    const QCommandLineOption density(QStringLiteral("dpy"),
            Texts::tr("The screen has <number> dots per inch, 1 to %1 (default: %2). At 100 % a page has its natural "
                      "size there.")
                    .arg(mostDotsPerInch)
                    .arg(standard.dotsPerInch),
            Texts::tr("number"));
    const QCommandLineOption fullScreen(QStringLiteral("s"),
            Texts::tr(
                    "Fill the screen, without a frame. Under a window system that arranges windows itself, the window "
                    "is one among others."));
    const QCommandLineOption title(
            QStringLiteral("t"), Texts::tr("Call the window <title> (default: the file's name)."), Texts::tr("title"));
    const QCommandLineOption plugin(QStringLiteral("plugin"),
            Texts::tr("Use the input plug-in <name:device>; may be given more than once. Has no effect if a window "
                      "system provides the input or the device does not exist."),
            Texts::tr("name:device"));
    const QCommandLineOption language(QStringLiteral("language"),
            Texts::tr("Speak the language of that code, such as \"de\" (default: that of the environment)."),
            Texts::tr("code"));
    parser.addOptions({density, fullScreen, title, plugin, language});

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1 || files.constFirst().isEmpty())
        return misused(Texts::tr("Name one PDF file to show."));

    Options options;
    if (parser.isSet(density))
        options.dotsPerInch = parser.value(density).toInt();
    if (options.dotsPerInch < 1 || options.dotsPerInch > mostDotsPerInch)
        return misused(Texts::tr("--dpy needs a number from 1 to %1.").arg(mostDotsPerInch));
    options.file = files.constFirst();
    options.title = titleOf(parser.value(title), options.file);
    options.language = parser.value(language);
    options.isFullScreen = parser.isSet(fullScreen);
    options.plugins = parser.values(plugin);
    return options;
}

} // namespace uiutils::viewer
