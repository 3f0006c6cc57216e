#include "languages/catalogues_p.h"

#include "base/ownplace_p.h"

#include <QCoreApplication>
#include <QDir>
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

/// Without the file Qt would try other names. One that is damaged, perhaps half copied, has no texts.
bool load(QTranslator& translator, const QString& file)
{
    if (!QFile::exists(file))
        return false;
    if (translator.load(file))
        return true;
    qWarning("The translations in %s cannot be read", qUtf8Printable(file));
    return false;
}

bool isCatalogue(const QString& file)
{
    QTranslator translator;
    return load(translator, file);
}

/// Null without a catalogue.
std::unique_ptr<QTranslator> loaded(const QString& folder, const QString& name, const QString& code)
{
    auto translator = std::make_unique<QTranslator>();
    const QStringList codes = fallbacks(code);
    for (const QString& fallback : codes) {
        if (load(*translator, filePath(folder, name, fallback)))
            return translator;
    }
    return nullptr;
}

} // namespace

Catalogues::Catalogues(const QStringList& folders)
    : m_folders(QStringList(installedFolder(QStringLiteral(UIUTILS_TRANSLATIONS_FOLDER))) + folders)
{
    // An empty folder would be the current one.
    m_folders.removeAll(QString());
}

QStringList Catalogues::codesOf(const QString& name) const
{
    static const QRegularExpression language(QStringLiteral("^[a-z]{2,3}(_[A-Za-z0-9]+)*$"));
    QStringList codes;
    for (const QString& folder : m_folders) {
        const QStringList files = QDir(folder).entryList({name + QLatin1String("_*.qm")}, QDir::Files, QDir::Name);
        for (const QString& file : files) {
            const QString code = file.mid(name.size() + 1).chopped(int(qstrlen(".qm")));
            if (language.match(code).hasMatch() && isCatalogue(folder + QLatin1Char('/') + file))
                codes += code;
        }
    }
    codes.removeDuplicates();
    return codes;
}

QStringList Catalogues::offered() const
{
    QStringList codes = codesOf(QCoreApplication::applicationName());
    if (codes.isEmpty())
        codes = codesOf(libraryName);
    codes.removeAll(QLatin1String(sourceLanguage));
    codes.sort();
    return QStringList(QLatin1String(sourceLanguage)) + codes;
}

bool Catalogues::has(const QString& code) const
{
    const auto isThere = [&](const QString& folder) {
        return isCatalogue(filePath(folder, libraryName, code))
                || isCatalogue(filePath(folder, QCoreApplication::applicationName(), code));
    };
    return code == QLatin1String(sourceLanguage) || std::any_of(m_folders.cbegin(), m_folders.cend(), isThere);
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
    for (const QString& folder : m_folders) {
        add(folder, libraryName);
        add(folder, QCoreApplication::applicationName());
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
