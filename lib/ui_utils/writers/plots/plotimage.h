#pragma once

#include "core/uiutils_export.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace uiutils {
class PlotImagePrivate;
}

/// Draws the result arrays of a service, x against y, into a PNG image.
///
/// A curve is a pair of array items whose ids end in "_x:doubleARRAY:" and "_y:doubleARRAY:" and agree before that. The
/// y item's label and unit name the curve, the first x item's the x axis; the attribute "scale" set to "log" on an item
/// of the first pair makes its axis logarithmic; the attributes "lowerLimit" and "upperLimit" of a y item are marked.
/// Curves of a second unit have an axis on the right. The legend below names every curve and limit. Long times and
/// points in time are said in words, such as "2 min 30 s".
///
/// Whatever the arrays hold, write() makes an image. A point that is not finite, or not positive along a logarithmic
/// axis, interrupts its curve. No peak is lost, however many points there are. Needs a QGuiApplication.
class UIUTILS_EXPORT PlotImage
{
public:
    /// A plot without a service, which is an empty frame.
    PlotImage();
    ~PlotImage();
    Q_DISABLE_COPY_MOVE(PlotImage)

    /// The name of the service whose arrays are drawn.
    void setService(const QString& service);
    /// The background colour, a name of CSS or "#rrggbb"; an empty or unknown one means white.
    void setCurveBackground(const QString& color);
    /// In pixels; a width or height below 1 means the default of 600 x 400, others are limited to 50 to 4,000.
    /// The picture becomes higher for a title and a legend that would leave the curves half of the height.
    void setSize(int width, int height);

    /// How many pixels the picture has for each pixel of its size, along both sides: 1 by default, more for paper;
    /// limited to 4, and to 4,000 pixels along a side. The drawing is the same with all of them.
    void setPixelScale(int scale);

    /// What is written above the plot; nothing by default.
    void setTitle(const QString& title);

    /// Draws the plot and writes it to `path`, an instrument path. A temporary image, "/tmp/rep_plot_...", does not
    /// have to survive a power cut and is not written durably. Returns false if the file could not be written;
    /// getData() returns the image all the same.
    bool write(const QString& path);

    /// The PNG of the last write().
    QByteArray getData() const;

private:
    const std::unique_ptr<uiutils::PlotImagePrivate> d;
};
