#pragma once

#include "audit/openers.h"
#include "audit/screenaudit.h"
#include "common/screen.h"
#include "languages/languages.h"

#include <QDir>
#include <QMap>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>
#include <QVector>

#include <cstdio>
#include <functional>

using uiutils::apps::Screen;
using uiutils::audit::ScreenAudit;

/// What every page is judged at.
inline const QVector<Screen> screens {{{800, 480}, 133}, {{1024, 600}, 170}, {{1280, 800}, 149}};
inline const QStringList themes {"light", "dark", "sunlight"};

/// A window whose pages are shown on all screens, in all languages and themes, and what the audit found there: each fault once, with
/// how often it was found and the first place.
class Stage
{
public:
    using Show = std::function<void(const QString& page)>;

    Stage(QQmlEngine* engine, QQuickWindow* window, const QStringList& pages, const Show& show)
        : m_engine(engine)
        , m_window(window)
        , m_pages(pages)
        , m_show(show)
    {
    }

    /// Faults that match are not reported. The list may only shrink.
    void allow(const QString& pattern, const QString& reason) { m_allowed.insert(pattern, reason); }

    /// A screen or a language moves things, a theme colours them. The long form leaves nothing out.
    void judgeAll()
    {
        const bool isLong = !qEnvironmentVariableIsEmpty("UIUTILS_SCREENS_LONG");
        for (const Screen& screen : screens) {
            for (const QString& language : languages()) {
                QVERIFY2(uiutils::Languages::instance()->setCurrent(language), qPrintable(language));
                for (const QString& theme : isLong ? QStringList(themes) : QStringList(themes.first()))
                    judge(screen, theme, ScreenAudit::Geometry | ScreenAudit::Voice | (isLong ? ScreenAudit::Contrast : 0));
            }
        }
        uiutils::Languages::instance()->setCurrent("en");
        for (const QString& theme : isLong ? QStringList() : QStringList(themes))
            judge(screens[1], theme, ScreenAudit::Contrast);
        if (!m_sheet.isEmpty())
            writeSheet();
    }

    /// Prints the faults, and exceptions that are not needed any more, and returns how many there are.
    int report() const
    {
        int faults = 0;
        QStringList idle = m_allowed.keys();
        for (auto it = m_faults.begin(); it != m_faults.end(); ++it) {
            const QString allowed = allowing(it.key());
            idle.removeAll(allowed);
            if (!allowed.isEmpty())
                continue;
            ++faults;
            std::fprintf(stderr, "%s (%d times in %d pictures)\n", qPrintable(it->first()), it->size(), m_judged);
        }
        for (const QString& pattern : idle)
            std::fprintf(stderr, "The exception \"%s\" is not needed any more.\n", qPrintable(pattern));
        return faults + idle.size();
    }

private:
    static QStringList languages()
    {
#ifdef __SANITIZE_ADDRESS__
        return {"en", "ar", "pseudo"};
#else
        QStringList codes {"pseudo"};
        for (const QVariant& language : uiutils::Languages::instance()->available())
            codes += language.toMap().value("code").toString();
        return codes;
#endif
    }

    void judge(const Screen& screen, const QString& theme, int rules)
    {
        uiutils::apps::useDensity(m_engine, screen.dotsPerInch);
        uiutils::apps::useTheme(m_engine, theme);
        m_window->resize(screen.size);
        const QString size = QString("%1x%2").arg(screen.size.width()).arg(screen.size.height());
        for (const QString& page : m_pages) {
            m_show(page);
            if (QTest::currentTestFailed())
                return;
            const QString place = QStringList {page, size, theme, uiutils::Languages::instance()->current()}.join('-');
            const ScreenAudit audit(m_window, screen.dotsPerInch / 25.4);
            const bool keepsPictures = !qEnvironmentVariableIsEmpty("UIUTILS_PICTURES");
            note(place, audit.complaints(rules));
            ++m_judged;
            if (keepsPictures)
                keepPicture(place, page);
            int opened = 0;
            note(place, audit.complaintsOfOpened(rules, [&] {
                ++m_judged;
                if (keepsPictures)
                    save(uiutils::audit::pictureAtRest(m_window), QString("%1-opened-%2").arg(place).arg(++opened));
            }));
        }
    }

    void note(const QString& place, const QStringList& complaints)
    {
        for (const QString& complaint : complaints)
            m_faults[keyOf(complaint)] += place + ": " + complaint;
    }

    // Figures differ from screen to screen, and pages share bars.
    static QString keyOf(QString complaint)
    {
        return complaint.replace(QRegularExpression("[0-9]+"), "0");
    }

    QString allowing(const QString& fault) const
    {
        const QStringList patterns = m_allowed.keys();
        const auto found = std::find_if(patterns.begin(), patterns.end(),
                [&](const QString& pattern) { return fault.contains(QRegularExpression(pattern)); });
        return found == patterns.end() ? QString() : *found;
    }

    static void save(const QImage& picture, const QString& name)
    {
        QVERIFY(picture.save(QDir(qEnvironmentVariable("UIUTILS_PICTURES")).filePath(name + ".png")));
    }

    void keepPicture(const QString& place, const QString& page)
    {
        const QImage picture = uiutils::audit::pictureAtRest(m_window);
        save(picture, place);
        const int column = onSheet.indexOf(place.mid(page.size() + 1));
        if (column >= 0)
            m_sheet[page][column] = picture.scaled(thumb, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    /// A row for each page.
    void writeSheet() const
    {
        QImage sheet(thumb.width() * onSheet.size(), thumb.height() * m_sheet.size(), QImage::Format_RGB32);
        sheet.fill(Qt::gray);
        QPainter painter(&sheet);
        int y = 0;
        for (const QMap<int, QImage>& row : m_sheet) {
            for (auto it = row.begin(); it != row.end(); ++it)
                painter.drawImage(it.key() * thumb.width(), y, *it);
            y += thumb.height();
        }
        save(sheet, "sheet-" + m_pages.first());
    }

    const QStringList onSheet {"800x480-light-en", "1024x600-light-en", "1280x800-light-en", "1024x600-dark-en",
            "1024x600-sunlight-en", "1024x600-light-de", "1024x600-light-ja", "1024x600-light-ar"};
    const QSize thumb {256, 160};

    QQmlEngine* m_engine;
    QQuickWindow* m_window;
    QStringList m_pages;
    Show m_show;
    int m_judged = 0;
    QMap<QString, QMap<int, QImage>> m_sheet;
    QMap<QString, QStringList> m_faults;
    QMap<QString, QString> m_allowed;
};
