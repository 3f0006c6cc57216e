#include "screenaudit.h"

#include "openers.h"
#include "rules.h"
#include "texts.h"
#include "voice.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QPointer>
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

Scene sceneOf(const QQuickWindow* window)
{
    const QQuickItem* const open = topPopup(window);
    const Scene scene = readScene(window);
    return open ? within(scene, open) : scene;
}

/// What the judging of something that opens leaves behind otherwise: what has the focus, and how far the page is scrolled.
class PageKeeper
{
public:
    explicit PageKeeper(QQuickWindow* window)
        : m_window(window)
        , m_focused(window->activeFocusItem())
    {
        const QVector<const QQuickItem*> scrollers = readScene(window).scrollers;
        for (const QQuickItem* scroller : scrollers)
            m_places.append({const_cast<QQuickItem*>(scroller), scroller->property("contentY").toDouble()});
    }
    ~PageKeeper()
    {
        if (m_focused)
            m_focused->forceActiveFocus(Qt::MouseFocusReason);
        else if (QQuickItem* const focused = m_window->activeFocusItem())
            focused->setFocus(false);
        for (const auto& [scroller, place] : qAsConst(m_places)) {
            if (scroller)
                scroller->setProperty("contentY", place);
        }
    }
    Q_DISABLE_COPY_MOVE(PageKeeper)

private:
    QQuickWindow* m_window;
    QPointer<QQuickItem> m_focused;
    QVector<QPair<QPointer<QQuickItem>, double>> m_places;
};

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

QStringList ScreenAudit::complaintsOfOpened(int rules, const std::function<void()>& look) const
{
    QStringList all;
    const PageKeeper keeper(m_window);
    const QQuickItem* const before = topPopup(m_window);
    const QVector<Opener> openers = openersIn(m_window);
    for (const Opener& opener : openers) {
        if (!opener.item || !opener.target)
            continue;
        QMetaObject::invokeMethod(opener.target, opener.open);
        pictureAtRest(m_window);
        QQuickItem* const popup = topPopup(m_window);
        if (!popup || popup == before) {
            all += Texts::tr("Opened: %1: nothing opens").arg(nameOf(opener.item));
            continue;
        }
        all += complaintsOf(popup, opener.item, rules);
        if (look)
            look();
        close(popup);
    }
    all.removeDuplicates();
    return all;
}

QStringList ScreenAudit::complaintsOf(QQuickItem* popup, const QQuickItem* opener, int rules) const
{
    QStringList all = complaints(rules);
    const QQuickItem* const field = fieldOf(opener);
    if (rules & Geometry && field && !isDimming(popup))
        all += coveredFields(popup, field);
    for (QString& complaint : all)
        complaint = Texts::tr("%1 (opened by %2)").arg(complaint, nameOf(opener));
    return all;
}

QStringList ScreenAudit::seen(int rules) const
{
    waitForPopup(m_window);
    const QImage picture = pictureAtRest(m_window);
    const Scene scene = sceneOf(m_window);
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
    const QVector<const QQuickItem*> scrollers = sceneOf(m_window).scrollers;
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
            complaints += faintWords(sceneOf(m_window), picture);
        }
        scroller->setProperty("contentY", before);
    }
    return complaints;
}

} // namespace uiutils::audit
