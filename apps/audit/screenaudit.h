#pragma once

#include <QImage>
#include <QStringList>

#include <functional>

class QQuickItem;
class QQuickWindow;

namespace uiutils::audit {

/// Draws the window until two pictures in a row are equal, and returns the last one. What never stands still, such as
/// a running clock, ends after a number of pictures.
QImage pictureAtRest(QQuickWindow* window);

/// What in a window a technician could not touch or read: one line for each violation, with the item and the measure.
/// The window has to be shown. Contents that scroll are moved through the window, and back. While something is open over
/// the page, such as a dialog, that is judged and not the page.
class ScreenAudit
{
public:
    /// The size and place of things: what a language or a screen can spoil.
    static constexpr int Geometry = 1;
    /// The contrast of texts and icons, measured in pictures: what a theme can spoil.
    static constexpr int Contrast = 2;
    /// What screen readers do not say: what a page spoils alone.
    static constexpr int Voice = 4;

    /// Turns accessibility on, without which the tree of the page is not complete; pages that were loaded before
    /// may lack something.
    static void prepare();

    ScreenAudit(QQuickWindow* window, double pixelsPerMillimetre);

    QStringList complaints(int rules = Geometry | Contrast | Voice) const;

    /// The same for what the controls of the page open: lists of choices, pads, pickers. Each is opened, judged and
    /// closed again; `look` is called while it is open. What opens beside a field must not cover it.
    QStringList complaintsOfOpened(int rules, const std::function<void()>& look = {}) const;

private:
    QStringList seen(int rules) const;
    QStringList complaintsOf(QQuickItem* popup, const QQuickItem* opener, int rules) const;
    QStringList faintContents() const;

    QQuickWindow* m_window;
    double m_pixelsPerMillimetre;
};

} // namespace uiutils::audit
