#pragma once

#include "core/uiutils_export.h"
#include "report/report.h"

#include <QDateTime>
#include <QObject>
#include <QQmlParserStatus>
#include <QString>
#include <QVariantMap>

#include <memory>

class ReportTemplate;

namespace uiutils {

class ReportDraftPrivate;

/// Keeps what was measured and is not saved yet: a file survives a crash or a power cut, and is offered at the next
/// start. In QML: ReportDraft.
///
/// keep() takes what the page has at that moment: `data`, the document, and of `report` the values of its settings, its
/// title, subject, orientation, test time, test duration and screenshots. A thread writes that soon, completely or not
/// at all. When `report` has saved its report, the file is removed, unless other data or another document were kept
/// while it was written; no other event removes it but forget() and discard().
///
/// The files are in "/cust/private/drafts/", in a folder for each application and `draftId`, which only the user of the
/// process may read. A folder has one owner at a time, and what its owner finds there is of earlier runs. A draft that
/// is damaged is not offered: it gets another name there, and the log has a line. A draft that another version of the
/// library has made stays and is not offered. Of more than 20 drafts that nobody has answered, the one that was written
/// first is removed, with a line in the log.
///
/// Setters emit their notifier when the value changes. Everything but the writing runs on the GUI thread.
class UIUTILS_EXPORT ReportDraft : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    /// Names the draft within the application, such as the kind of test. Without one nothing is kept or offered; empty
    /// by default. What was taken under the former name is written first; if that fails, it is lost, and the log says
    /// so.
    Q_PROPERTY(QString draftId READ draftId WRITE setDraftId NOTIFY draftIdChanged)
    /// The controller of the report; null by default. It stays the caller's.
    Q_PROPERTY(Report* report READ report WRITE setReport NOTIFY reportChanged)
    /// The document that is kept where there is no `report`; null by default. It stays the caller's.
    Q_PROPERTY(ReportTemplate* document READ document WRITE setDocument NOTIFY documentChanged)
    /// What the page has measured: texts, numbers, booleans, lists and objects. Setting other data calls keep(). JSON
    /// is what is kept: numbers that it does not have, such as NaN, become null, and dates become texts.
    Q_PROPERTY(QVariantMap data READ data WRITE setData NOTIFY dataChanged)
    /// The shortest time between two writes in milliseconds; 2000 by default. A draft that takes long to write is
    /// written less often, every minute in any case: the writing takes at most a twentieth of the time.
    Q_PROPERTY(int interval READ interval WRITE setInterval NOTIFY intervalChanged)
    /// Whether a draft of an earlier run is offered. The answer is restore() or discard().
    Q_PROPERTY(bool available READ isAvailable NOTIFY availableChanged)
    /// How many drafts of earlier runs wait for an answer. The one that was written last is offered first.
    Q_PROPERTY(int availableCount READ availableCount NOTIFY availableChanged)
    /// When the offered draft was written, in local time; invalid if none is offered.
    Q_PROPERTY(QDateTime savedAt READ savedAt NOTIFY availableChanged)
    /// What the offered draft is of: the name of the report, or its title; may be empty.
    Q_PROPERTY(QString availableTitle READ availableTitle NOTIFY availableChanged)
    /// Whether anything that keep() has taken is not safe on the disk yet.
    Q_PROPERTY(bool pending READ isPending NOTIFY pendingChanged)
    /// Why nothing can be kept now, in words for the user: the disk is full, for example. Empty if it can. The next
    /// attempt is made without a call.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    explicit ReportDraft(QObject* parent = nullptr);
    /// Writes what is not written yet. The draft stays, and is offered to the next owner of the folder.
    ~ReportDraft() override;

    QString draftId() const;
    void setDraftId(const QString& id);
    Report* report() const;
    void setReport(Report* report);
    ReportTemplate* document() const;
    void setDocument(ReportTemplate* document);
    QVariantMap data() const;
    void setData(const QVariantMap& data);
    int interval() const;
    void setInterval(int interval);
    bool isAvailable() const;
    int availableCount() const;
    QDateTime savedAt() const;
    QString availableTitle() const;
    bool isPending() const;
    QString problem() const;

    /// Takes what data, document and controller hold now; of a controller or document that was deleted, what was taken
    /// last stays. The time that this takes does not depend on the length of the document: call it whenever something
    /// has changed.
    Q_INVOKABLE void keep();
    /// Writes what was taken and waits until it is safe; done by itself when the application quits. False if it is not
    /// safe; `problem` says why.
    Q_INVOKABLE bool flush();
    /// Gives the offered draft back: document, controller and `data` take what it has, then restored() is emitted. It
    /// is the draft of this run then. What this run has taken before is offered in its place. False, and nothing
    /// changes, if the draft cannot be read, or if what this run has taken cannot be made safe, and in a slot that
    /// another restore() notifies before restored().
    Q_INVOKABLE bool restore();
    /// The user does not want the offered draft: removes its file.
    Q_INVOKABLE void discard();
    /// What this run has taken is not needed any more: removes its file. Keeps `data` as it is.
    Q_INVOKABLE void forget();

    /// Called by QML.
    void classBegin() override;
    /// Called by QML.
    void componentComplete() override;

Q_SIGNALS:
    void draftIdChanged();
    void reportChanged();
    void documentChanged();
    void dataChanged();
    void intervalChanged();
    void availableChanged();
    void pendingChanged();
    void problemChanged();
    /// A draft was given back.
    void restored();

private:
    friend class ReportDraftPrivate;

    const std::unique_ptr<ReportDraftPrivate> d;
};

} // namespace uiutils
