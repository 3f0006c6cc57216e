#include "base/catalogues_p.h"

#include "base/ownplace_p.h"
#include "base/servicetext_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTranslator>

namespace uiutils {

namespace {

const QString libraryName = QStringLiteral("uiutils");
/// Of no country: the source texts, longer, so that page writers see which ones are cut off. It is not offered to
/// users.
const QString longLanguage = QStringLiteral("pseudo");

/// "de_AT" and "de".
QStringList fallbacks(QString code)
{
    QStringList all;
    for (; !code.isEmpty(); code.truncate(qMax(0, code.lastIndexOf(QLatin1Char('_')))))
        all += code;
    return all;
}

QString filePath(const QString& folder, const QString& name, const QString& code)
{
    return folder + QLatin1Char('/') + name + QLatin1Char('_') + code + QLatin1String(".qm");
}

/// More than any catalogue has.
constexpr qint64 largestCatalogue = 64 * 1024 * 1024;

/// Holds its catalogue in memory. Qt maps files, and a program that writes a mapped one anew ends those that read it.
class HeldTranslator : public QTranslator
{
public:
    HeldTranslator() = default;
    /// Other threads request texts too: the catalogue goes after nobody can find it.
    ~HeldTranslator() override
    {
        if (QCoreApplication::instance())
            QCoreApplication::removeTranslator(this);
    }
    Q_DISABLE_COPY_MOVE(HeldTranslator)

    bool read(const QString& file)
    {
        QFile source(file);
        if (!source.open(QIODevice::ReadOnly) || source.size() > largestCatalogue)
            return false;
        m_catalogue = source.readAll();
        return load(reinterpret_cast<const uchar*>(m_catalogue.constData()), m_catalogue.size());
    }

private:
    QByteArray m_catalogue;
};

/// Speaks for services only: whoever writes a service does not decide what the rest of an application says.
class ServiceTranslator final : public HeldTranslator
{
public:
    QString translate(const char* context, const char* text, const char* comment, int count) const override
    {
        const bool isOfService = qstrcmp(context, serviceContext) == 0;
        return isOfService ? HeldTranslator::translate(context, text, comment, count) : QString();
    }
};

/// Without the file Qt would try other names. One that is damaged, perhaps half copied, has no texts.
bool load(HeldTranslator& translator, const QString& file)
{
    if (!QFileInfo(file).isFile())
        return false;
    if (translator.read(file))
        return true;
    qWarning("The translations in %s cannot be read", qUtf8Printable(file));
    return false;
}

bool isCatalogue(const QString& file)
{
    HeldTranslator translator;
    return load(translator, file);
}

/// Null without a catalogue.
template<class Translator = HeldTranslator>
std::unique_ptr<QTranslator> loaded(const QString& folder, const QString& name, const QString& code)
{
    auto translator = std::make_unique<Translator>();
    const QStringList codes = fallbacks(code);
    for (const QString& fallback : codes) {
        if (load(*translator, filePath(folder, name, fallback)))
            return translator;
    }
    return nullptr;
}

QStringList filesIn(const QString& folder, const QString& pattern)
{
    return QDir(folder).entryList({pattern + QLatin1String(".qm")}, QDir::Files, QDir::Name);
}

/// The languages of the catalogues in a folder whose names are accepted. A name may contain underscores, too.
template<class Accept> QStringList codesIn(const QString& folder, const Accept& accepts)
{
    static const QRegularExpression form(QStringLiteral("^(.+)_([a-z]{2,3}(?:_[A-Z0-9][A-Za-z0-9]*)*)\\.qm$"));
    QStringList codes;
    const QStringList files = filesIn(folder, QStringLiteral("*_*"));
    for (const QString& file : files) {
        const QRegularExpressionMatch match = form.match(file);
        if (match.hasMatch() && accepts(match.captured(1)) && isCatalogue(folder + QLatin1Char('/') + file))
            codes += match.captured(2);
    }
    return codes;
}

bool isOfLibrary(const QString& name)
{
    return name == libraryName;
}

/// The names of the catalogues of a language: the library's first, so that an application can replace its texts.
QStringList namesIn(const QString& folder, const QString& code)
{
    QStringList names;
    for (const QString& fallback : fallbacks(code)) {
        const QString ending = QLatin1Char('_') + fallback;
        const QStringList files = filesIn(folder, QLatin1Char('*') + ending);
        for (const QString& file : files)
            names += file.chopped(ending.size() + int(qstrlen(".qm")));
    }
    names.removeDuplicates();
    if (names.removeAll(libraryName) > 0)
        names.prepend(libraryName);
    return names;
}

/// Those of the application in the folder that many share.
QStringList sharedNames()
{
    return {libraryName, QCoreApplication::applicationName()};
}

} // namespace

QString installedCatalogues(const QString& name)
{
    return installedFolder(QStringLiteral(UIUTILS_TRANSLATIONS_FOLDER "/") + name);
}

Catalogues::Catalogues(const QStringList& folders, const QStringList& serviceFolders)
    : m_installed(installedCatalogues())
    , m_folders(folders)
    , m_serviceFolders(serviceFolders)
{
    // An empty folder would be the current one.
    m_folders.removeAll(QString());
    m_serviceFolders.removeAll(QString());
}

QStringList Catalogues::offered() const
{
    QStringList ofLibrary = codesIn(m_installed, isOfLibrary);
    QStringList codes
            = codesIn(m_installed, [](const QString& name) { return name == QCoreApplication::applicationName(); });
    for (const QString& folder : m_folders) {
        ofLibrary += codesIn(folder, isOfLibrary);
        codes += codesIn(folder, [](const QString& name) { return !isOfLibrary(name); });
    }
    if (codes.isEmpty())
        codes = ofLibrary;
    codes.removeAll(QLatin1String(sourceLanguage));
    codes.removeDuplicates();
    codes.sort();
    return QStringList(QLatin1String(sourceLanguage)) + codes;
}

bool Catalogues::has(const QString& code) const
{
    if (code == QLatin1String(sourceLanguage))
        return true;
    // A language that is not one would match files as a pattern.
    static const QRegularExpression form(QStringLiteral("^\\w+$"));
    if (!form.match(code).hasMatch())
        return false;
    const QStringList names = sharedNames();
    const auto isInstalled = [&](const QString& name) { return isCatalogue(filePath(m_installed, name, code)); };
    const auto isIn = [&](const QString& folder) {
        const QStringList files = filesIn(folder, QStringLiteral("*_") + code);
        return std::any_of(files.cbegin(), files.cend(),
                [&](const QString& file) { return isCatalogue(folder + QLatin1Char('/') + file); });
    };
    return std::any_of(names.cbegin(), names.cend(), isInstalled)
            || std::any_of(m_folders.cbegin(), m_folders.cend(), isIn);
}

QString Catalogues::bestFor(const QLocale& locale) const
{
    const QStringList wanted = locale.uiLanguages();
    for (QString language : wanted) {
        const QStringList codes = fallbacks(language.replace(QLatin1Char('-'), QLatin1Char('_')));
        for (const QString& code : codes) {
            if (has(code))
                return code;
        }
    }
    return QLatin1String(sourceLanguage);
}

std::vector<std::unique_ptr<QTranslator>> Catalogues::load(const QString& code) const
{
    std::vector<std::unique_ptr<QTranslator>> all;
    const auto add = [&](const QString& folder, const QString& name) {
        if (auto translator = loaded(folder, name, code))
            all.push_back(std::move(translator));
    };
    add(QLibraryInfo::location(QLibraryInfo::TranslationsPath), QStringLiteral("qtbase"));
    const QStringList shared = sharedNames();
    for (const QString& name : shared)
        add(m_installed, name);
    for (const QString& folder : m_serviceFolders) {
        const QStringList names = namesIn(folder, code);
        for (const QString& name : names) {
            if (auto translator = loaded<ServiceTranslator>(folder, name, code))
                all.push_back(std::move(translator));
        }
    }
    for (const QString& folder : m_folders) {
        const QStringList names = namesIn(folder, code);
        for (const QString& name : names)
            add(folder, name);
    }
    return all;
}

QLocale localeOfLanguage(const QString& code)
{
    if (code == longLanguage)
        return QLocale(QLatin1String(sourceLanguage));
    return withPlainDigits(QLocale(code));
}

QLocale withPlainDigits(const QLocale& usual)
{
    const auto hasPlainDigits = [](const QLocale& locale) { return locale.zeroDigit() == QLatin1Char('0'); };
    if (hasPlainDigits(usual))
        return usual;
    const QList<QLocale> all = QLocale::matchingLocales(usual.language(), usual.script(), QLocale::AnyCountry);
    const auto plain = std::find_if(all.cbegin(), all.cend(), hasPlainDigits);
    // Those of the list have English names of months.
    return plain == all.cend() ? usual : QLocale(plain->name());
}

} // namespace uiutils
