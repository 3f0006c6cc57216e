#include "common/screen.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>

#include <memory>

namespace uiutils::apps {

namespace {

constexpr int fewestPixels = 200;
constexpr int mostPixels = 8000;
constexpr int fewestDots = 40;
constexpr int mostDots = 600;

bool isWithin(int number, int least, int most)
{
    return number >= least && number <= most;
}

void setStyle(QQmlEngine* engine, const QString& assignment)
{
    QQmlComponent setter(engine);
    setter.setData(QStringLiteral("import QtQml 2.15\nimport UiUtils.Controls 1.0\n"
                                  "QtObject { Component.onCompleted: ControlsStyle.%1 }")
                           .arg(assignment)
                           .toUtf8(),
            QUrl());
    const std::unique_ptr<QObject> done(setter.create());
    if (!done)
        qWarning("%s", qUtf8Printable(setter.errorString()));
}

} // namespace

QCommandLineOption screenOption(const QString& standard)
{
    return {QStringLiteral("screen"),
            QCoreApplication::translate("CommandLine",
                    "Show what a screen of that size and density shows, <width>x<height>@<dots per inch>, such as "
                    "800x480@133 (default: %1).")
                    .arg(standard),
            QCoreApplication::translate("CommandLine", "screen")};
}

QString readScreen(const QString& text, Screen* screen)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})@([0-9]{1,4})$"));
    const QRegularExpressionMatch match = form.match(text);
    const int width = match.captured(1).toInt();
    const int height = match.captured(2).toInt();
    const int dots = match.captured(3).toInt();
    if (!match.hasMatch() || !isWithin(qMin(width, height), fewestPixels, mostPixels)
            || !isWithin(qMax(width, height), fewestPixels, mostPixels) || !isWithin(dots, fewestDots, mostDots)) {
        return QCoreApplication::translate("CommandLine",
                "--screen needs a size of %1 to %2 pixels and a density of %3 to %4 dots per inch, such as "
                "1024x600@170.")
                .arg(fewestPixels)
                .arg(mostPixels)
                .arg(fewestDots)
                .arg(mostDots);
    }
    *screen = {{width, height}, dots};
    return QString();
}

void useDensity(QQmlEngine* engine, int dotsPerInch)
{
    setStyle(engine, QStringLiteral("pixelDensity = %1 / 25.4").arg(dotsPerInch));
}

void useTheme(QQmlEngine* engine, const QString& theme)
{
    setStyle(engine, QStringLiteral("theme = '%1'").arg(theme));
}

} // namespace uiutils::apps
