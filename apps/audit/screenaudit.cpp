#include "screenaudit.h"

#include "rules.h"
#include "voice.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>

#include <algorithm>

namespace uiutils::audit {

namespace {

constexpr int mostPictures = 100;

// Lists repeat what is seen of them.
bool isPlain(const QQuickItem* scroller)
{
    return !scroller->inherits("QQuickItemView");
}

QImage pictureOf(QQuickWindow* window)
{
    // Draws in any case; without a display what was drawn is only with the screen.
    QImage picture = window->grabWindow();
    if (picture.isNull())
        picture = window->screen()->grabWindow(window->winId()).toImage();
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace

QImage pictureAtRest(QQuickWindow* window)
{
    QImage last;
    for (int i = 0; i < mostPictures; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QImage picture = pictureOf(window);
        if (!picture.isNull() && picture == last)
            break;
        last = picture;
    }
    return last;
}

void ScreenAudit::prepare()
{
    QAccessible::setActive(true);
}

ScreenAudit::ScreenAudit(QQuickWindow* window, double pixelsPerMillimetre)
    : m_window(window)
    , m_pixelsPerMillimetre(pixelsPerMillimetre)
{
}

QStringList ScreenAudit::complaints(int rules) const
{
    QStringList complaints = seen(rules);
    // What moves on its way to its place is seen once.
    if (!complaints.isEmpty()) {
        const QStringList still = seen(rules);
        const auto isGone = [&still](const QString& complaint) { return !still.contains(complaint); };
        complaints.erase(std::remove_if(complaints.begin(), complaints.end(), isGone), complaints.end());
    }
    complaints.removeDuplicates();
    return complaints;
}

QStringList ScreenAudit::seen(int rules) const
{
    const QImage picture = pictureAtRest(m_window);
    const Scene scene = readScene(m_window);
    QStringList complaints;
    if (rules & Geometry) {
        const Ruler ruler {m_pixelsPerMillimetre};
        complaints += smallTargets(scene, ruler) + crowdedTargets(scene, ruler) + smallTexts(scene, ruler)
                + cutTexts(scene) + overlappingTexts(scene) + strayTargets(scene);
    }
    if (rules & Contrast)
        complaints += faintWords(scene, picture) + faintContents();
    if (rules & Voice)
        complaints += unsaidWords(m_window, scene);
    return complaints;
}

QStringList ScreenAudit::faintContents() const
{
    QStringList complaints;
    const QVector<const QQuickItem*> scrollers = readScene(m_window).scrollers;
    for (const QQuickItem* found : scrollers) {
        auto* const scroller = const_cast<QQuickItem*>(found);
        if (!isPlain(scroller))
            continue;
        const double before = scroller->property("contentY").toDouble();
        const double last = scroller->property("contentHeight").toDouble() - scroller->height();
        // Half of the height, so that whatever an edge cuts is seen completely the next time.
        for (double y = 0; last > 0 && y < last + scroller->height() / 2; y += scroller->height() / 2) {
            scroller->setProperty("contentY", qMin(y, last));
            const QImage picture = pictureAtRest(m_window);
            complaints += faintWords(readScene(m_window), picture);
        }
        scroller->setProperty("contentY", before);
    }
    return complaints;
}

} // namespace uiutils::audit
