#include "languages/languages.h"

#include "base/catalogues_p.h"

#include <QCoreApplication>
#include <QPointer>
#include <QQmlEngine>
#include <QTranslator>
#include <QVector>

namespace uiutils {

namespace {

/// Qt asks its translations for the layout direction, each time that one is installed. They may not be there.
class Direction final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return qstrcmp(text, "QT_LAYOUT_DIRECTION") == 0 ? QStringLiteral("RTL") : QString();
    }
};

constexpr char context[] = "Languages";

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Languages)
};

/// What every catalogue says of itself, unless a native speaker has checked it.
const struct
{
    const char* remark;
} unchecked = {QT_TRANSLATE_NOOP("Languages", "No native speaker has checked this translation.")};

QString capitalised(const QString& name)
{
    return name.at(0).toUpper() + name.mid(1);
}

bool readsRightToLeft(const QString& code)
{
    return localeOfLanguage(code).textDirection() == Qt::RightToLeft;
}

} // namespace

struct Languages::Private
{
    QString nameOf(const QString& code) const;
    void install(const QString& code);
    void take(const QString& code);
    void showInPages() const;

    Catalogues catalogues;
    QStringList folders;
    QStringList serviceFolders;
    QString current = QLatin1String(sourceLanguage);
    /// That of the system, or what the application has set before.
    QLocale first;
    std::vector<std::unique_ptr<QTranslator>> installed;
    QVector<QPointer<QQmlEngine>> engines;
    bool isOpen = false;
};

QString Languages::Private::nameOf(const QString& code) const
{
    const auto translators = catalogues.load(code);
    for (auto it = translators.crbegin(); it != translators.crend(); ++it) {
        QString name = (*it)->translate(context, "English");
        if (!name.isEmpty())
            return name;
    }
    if (code == QLatin1String(sourceLanguage))
        return QStringLiteral("English");
    const QString known = QLocale(code).nativeLanguageName();
    return known.isEmpty() ? code : capitalised(known);
}

void Languages::Private::install(const QString& code)
{
    // A destroyed translator removes itself.
    installed = catalogues.load(code);
    if (readsRightToLeft(code))
        installed.push_back(std::make_unique<Direction>());
    for (const auto& translator : installed)
        QCoreApplication::installTranslator(translator.get());
}

void Languages::Private::take(const QString& code)
{
    current = code;
    QLocale::setDefault(code == catalogues.bestFor(first) ? withPlainDigits(first) : localeOfLanguage(code));
    install(code);
}

void Languages::Private::showInPages() const
{
    const auto followed = engines;
    for (const QPointer<QQmlEngine>& engine : followed) {
        if (engine)
            engine->retranslate();
    }
}

Languages* Languages::instance()
{
    static auto* const languages = new Languages;
    return languages;
}

Languages::Languages()
    : d(new Private)
{
}

Languages::~Languages() = default;

void Languages::open(const QStringList& folders)
{
    if (!d->isOpen)
        d->first = QLocale();
    d->isOpen = true;
    d->folders = folders;
    d->catalogues = Catalogues(folders, d->serviceFolders);
    d->take(d->catalogues.bestFor(d->first));
    // A slot may choose the language that the user wants.
    Q_EMIT availableChanged();
    Q_EMIT currentChanged();
    d->showInPages();
}

void Languages::close()
{
    if (!d->isOpen)
        return;
    d->isOpen = false;
    d->folders.clear();
    d->serviceFolders.clear();
    d->catalogues = Catalogues();
    d->current = QLatin1String(sourceLanguage);
    d->installed.clear();
    QLocale::setDefault(d->first);
    Q_EMIT availableChanged();
    Q_EMIT currentChanged();
    d->showInPages();
}

void Languages::setServiceFolders(const QStringList& folders)
{
    d->serviceFolders = folders;
    if (d->isOpen)
        readAgain();
}

void Languages::readAgain()
{
    if (!d->isOpen)
        return;
    d->catalogues = Catalogues(d->folders, d->serviceFolders);
    // Its last catalogue may have been removed.
    d->take(d->catalogues.has(d->current) ? d->current : QString::fromLatin1(sourceLanguage));
    Q_EMIT availableChanged();
    Q_EMIT currentChanged();
    d->showInPages();
}

void Languages::follow(QQmlEngine* engine)
{
    d->engines.removeAll(nullptr);
    if (!d->engines.contains(engine))
        d->engines += engine;
}

QString Languages::current() const
{
    return d->current;
}

bool Languages::setCurrent(const QString& code)
{
    if (code == d->current)
        return true;
    if (!d->catalogues.has(code))
        return false;
    d->take(code);
    Q_EMIT currentChanged();
    d->showInPages();
    return true;
}

QVariantList Languages::available() const
{
    QVariantList languages;
    const QStringList codes = d->catalogues.offered();
    for (const QString& code : codes) {
        languages += QVariantMap {{QStringLiteral("code"), code}, {QStringLiteral("name"), d->nameOf(code)},
                {QStringLiteral("isRightToLeft"), readsRightToLeft(code)}};
    }
    return languages;
}

QString Languages::name() const
{
    //: The name of the language of this translation, in that language.
    return Texts::tr("English");
}

QString Languages::remark() const
{
    const QString text = Texts::tr(unchecked.remark);
    return text == QLatin1String(unchecked.remark) ? QString() : text;
}

bool Languages::isRightToLeft() const
{
    return readsRightToLeft(d->current);
}

QLocale Languages::locale() const
{
    return QLocale();
}

} // namespace uiutils
