#pragma once

#include "core/uiutils_export.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class QQmlEngine;

namespace uiutils {

/// The language that the application speaks, and those that it can speak. In QML: the singleton Languages.
///
/// A language is a code such as "de" or "pt_BR". It has catalogues: files "uiutils_LANGUAGE.qm" for the library and
/// "APPLICATION_LANGUAGE.qm", with the name of the application, in the installed folder share/uiutils/translations, and
/// all files "NAME_LANGUAGE.qm" in the folders that open() gets. English, the language of the sources, needs none. A
/// damaged file counts for nothing, and the log has a line. The application remembers the user's choice; this class
/// does not.
///
/// When the language changes, so do the default QLocale and the layout direction of the application; every binding in
/// the pages of all followed engines is evaluated again, and labels of items and of the library's own settings change.
/// A text that was put together before, such as the message of a notification, keeps its language. Everything runs on
/// the GUI thread.
class UIUTILS_EXPORT Languages : public QObject
{
    Q_OBJECT
    /// The code of the language. A language without a catalogue that can be read is rejected: setting it changes
    /// nothing.
    Q_PROPERTY(QString current READ current WRITE setCurrent NOTIFY currentChanged)
    /// The languages to offer to users, English first and the others by their codes: objects with `code`, `name` (of
    /// the language, in that language) and `isRightToLeft`. They are those of the application, where it has catalogues
    /// of its own, else those of the library.
    Q_PROPERTY(QVariantList available READ available NOTIFY availableChanged)
    /// The name of the current language, in that language.
    Q_PROPERTY(QString name READ name NOTIFY currentChanged)
    /// What users should know of the translation, such as that no native speaker has checked it; empty without such a
    /// remark.
    Q_PROPERTY(QString remark READ remark NOTIFY currentChanged)
    /// Whether the current language is written from right to left.
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft NOTIFY currentChanged)
    /// How numbers, dates and times are written: the default QLocale. Bindings that use Qt.locale() follow too; code
    /// that is not a binding takes it from here.
    Q_PROPERTY(QLocale locale READ locale NOTIFY currentChanged)

public:
    /// The one instance, created by the first call; never null and never deleted. There must be an application object.
    static Languages* instance();

    /// Looks for catalogues in these folders too, where those of a later folder have precedence, and takes the language
    /// that suits the default QLocale best. Host::start() calls it. Emits availableChanged() and currentChanged().
    void open(const QStringList& folders = QStringList());
    /// Ends what open() has begun: removes the translations and restores the default QLocale. Emits as open() does.
    void close();

    /// The folders with catalogues of services. They translate the labels, choices, units and errors of service items
    /// and nothing else; an application's own catalogues have precedence. They bring no language to offer.
    /// Host::start() names the folders "translations" beside the service files; close() forgets all. While the
    /// languages are open, this reads the catalogues again.
    void setServiceFolders(const QStringList& folders);
    /// Reads all catalogues again, after some have been changed. Emits as open() does. The language stays; without a
    /// catalogue that can be read it becomes English.
    void readAgain();

    /// Evaluates the bindings of the engine's pages again whenever the language changes. Host::showTo() calls it, as
    /// does every engine that imports the module UiUtils.
    void follow(QQmlEngine* engine);

    QString current() const;
    /// Returns false, and changes nothing, when there is no catalogue of that language. Emits currentChanged() when the
    /// language has changed, before pages show it.
    bool setCurrent(const QString& code);
    QVariantList available() const;
    QString name() const;
    QString remark() const;
    bool isRightToLeft() const;
    QLocale locale() const;

Q_SIGNALS:
    /// Texts, numbers, dates and layout have another language.
    void currentChanged();
    void availableChanged();

private:
    Languages();
    ~Languages() override;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace uiutils
