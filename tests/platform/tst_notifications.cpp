#include <kiv/kivnotificationmodelmanager.h>

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(KIVNotification*)

namespace {

KIVNotificationModelManager* manager()
{
    return KIVNotificationModelManager::instance();
}

std::unique_ptr<KIVNotification> request(const QString& title)
{
    auto notification = std::make_unique<KIVNotification>();
    notification->setRequest();
    notification->setLongLabel(title);
    return notification;
}

QStringList trayTitles()
{
    QStringList titles;
    for (int row = 0; row < manager()->rowCount(); ++row)
        titles.append(manager()->index(row).data(KIVNotificationModelManager::LongLabelRole).toString());
    return titles;
}

} // namespace

class NotificationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        manager()->clear();
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(manager()->waitingDialogs(), 0);
    }

    void oneManagerThatOutlivesTheFirstToAsk()
    {
        auto screen = std::make_unique<QObject>();
        const QPointer<KIVNotificationModelManager> first = KIVNotificationModelManager::instance(screen.get());
        screen.reset();
        QVERIFY(first);
        QCOMPARE(manager(), first.data());
    }

    void everyNotificationHasAUidOfItsOwn()
    {
        const KIVNotification first;
        const KIVNotification second;
        QVERIFY(!first.value("uid").toString().isEmpty());
        QVERIFY(first.value("uid") != second.value("uid"));
        QVERIFY(!first.value("unknown").isValid());
    }

    void trayKeepsCopiesNewestFirst()
    {
        const QAbstractItemModelTester tester(manager(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        {
            KIVNotification notification;
            notification.setLongLabel("first");
            notification.setMsg("text");
            notification.notifyTray();
            notification.setError();
            notification.setLongLabel("second");
            notification.notifyTray();
            notification.setLongLabel("too late");
        }
        QCOMPARE(trayTitles(), (QStringList {"second", "first"}));
        QVERIFY(!manager()->currentDialog());
        const QModelIndex entry = manager()->index(0);
        QCOMPARE(entry.data(KIVNotificationModelManager::KindRole).toInt(), int(KIVNotification::Error));
        QCOMPARE(entry.data(KIVNotificationModelManager::MsgRole).toString(), QString("text"));
        QVERIFY(entry.data(KIVNotificationModelManager::TimeRole).toDateTime().isValid());
        QCOMPARE(manager()->index(1).data(KIVNotificationModelManager::KindRole).toInt(), int(KIVNotification::Notice));

        QSignalSpy counts(manager(), &KIVNotificationModelManager::countChanged);
        for (const int outside : {-1, 2})
            manager()->remove(outside);
        QCOMPARE(counts.size(), 0);
        manager()->remove(0);
        QCOMPARE(trayTitles(), QStringList {"first"});
        manager()->clear();
        manager()->clear();
        QCOMPARE(counts.size(), 2);
        QCOMPARE(manager()->count(), 0);
    }

    void trayForgetsTheOldest()
    {
        const QAbstractItemModelTester tester(manager(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        constexpr int maximum = KIVNotificationModelManager::maximumTrayEntries;
        KIVNotification notification;
        for (int i = 0; i < maximum + 2; ++i) {
            notification.setLongLabel(QString::number(i));
            notification.notifyTray();
            QVERIFY(manager()->count() <= maximum);
        }
        QCOMPARE(manager()->count(), maximum);
        QCOMPARE(trayTitles().constFirst(), QString::number(maximum + 1));
        QCOMPARE(trayTitles().constLast(), QString("2"));
    }

    /// A view follows currentDialog.
    void aQuestionThatNobodyShowsIsLogged()
    {
        static QStringList said;
        const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { said += text; });
        const auto restore = qScopeGuard([=] { qInstallMessageHandler(before); });
        request("Seen?")->notifyDialog();
        KIVNotification().notifyDialog();
        QCOMPARE(said.size(), 1);
        QVERIFY2(said[0].contains("\"Seen?\" is shown nowhere"), qPrintable(said[0]));
        const QSignalSpy view(manager(), &KIVNotificationModelManager::currentDialogChanged);
        request("Seen.")->notifyDialog();
        QCOMPARE(said.size(), 1);
    }

    void dialogsOneAtATime()
    {
        const auto first = request("first");
        const auto second = request("second");
        QSignalSpy current(manager(), &KIVNotificationModelManager::currentDialogChanged);
        QSignalSpy waiting(manager(), &KIVNotificationModelManager::waitingDialogsChanged);
        QSignalSpy accepted(manager(), &KIVNotificationModelManager::notificationAccepted);
        QSignalSpy rejected(manager(), &KIVNotificationModelManager::notificationRejected);
        first->notifyDialog();
        second->notifyDialog();
        first->notifyDialog();
        QCOMPARE(manager()->currentDialog(), first.get());
        QCOMPARE(manager()->waitingDialogs(), 1);
        QCOMPARE(manager()->count(), 0);
        QCOMPARE(current.size(), 1);
        QCOMPARE(waiting.size(), 1);

        manager()->accept();
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(accepted.at(0).at(0).value<KIVNotification*>(), first.get());
        QCOMPARE(manager()->currentDialog(), second.get());
        QCOMPARE(manager()->waitingDialogs(), 0);
        manager()->reject();
        QCOMPARE(rejected.size(), 1);
        QCOMPARE(rejected.at(0).at(0).value<KIVNotification*>(), second.get());
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(current.size(), 3);
        QCOMPARE(waiting.size(), 2);

        manager()->accept();
        manager()->reject();
        QCOMPARE(accepted.size() + rejected.size(), 2);

        first->notifyDialog();
        manager()->reject();
        QCOMPARE(rejected.size(), 2);
    }

    void closingAMessageIsNotAnAnswer()
    {
        QSignalSpy accepted(manager(), &KIVNotificationModelManager::notificationAccepted);
        QSignalSpy rejected(manager(), &KIVNotificationModelManager::notificationRejected);
        KIVNotification error;
        error.setError();
        KIVNotification notice;
        for (KIVNotification* message : {&error, &notice}) {
            message->notifyDialog();
            manager()->accept();
            message->notifyDialog();
            manager()->reject();
        }
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(accepted.size() + rejected.size(), 0);
    }

    void deletedNotificationsLeaveTheQueue()
    {
        auto first = request("first");
        auto second = request("second");
        const auto third = request("third");
        for (KIVNotification* notification : {first.get(), second.get(), third.get()})
            notification->notifyDialog();
        first->notifyTray();
        QSignalSpy current(manager(), &KIVNotificationModelManager::currentDialogChanged);
        QSignalSpy accepted(manager(), &KIVNotificationModelManager::notificationAccepted);
        second.reset();
        QCOMPARE(current.size(), 0);
        QCOMPARE(manager()->waitingDialogs(), 1);
        first.reset();
        QCOMPARE(current.size(), 1);
        QCOMPARE(manager()->currentDialog(), third.get());
        QCOMPARE(trayTitles(), QStringList {"first"});
        manager()->accept();
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(accepted.at(0).at(0).value<KIVNotification*>(), third.get());
    }

    void aNotificationDeletedWhileItsDialogClosesIsNotReported()
    {
        auto question = request("question");
        question->notifyDialog();
        QSignalSpy accepted(manager(), &KIVNotificationModelManager::notificationAccepted);
        QObject page;
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, &page, [&] { question.reset(); });
        manager()->accept();
        QVERIFY(!question);
        QCOMPARE(accepted.size(), 0);
    }

    /// The next question may be asked while the previous one is answered.
    void anAnswerMayRaiseTheNextDialog()
    {
        const auto question = request("question");
        KIVNotification failure;
        failure.setError();
        QObject page;
        connect(manager(), &KIVNotificationModelManager::notificationAccepted, &page, [&] { failure.notifyDialog(); });
        question->notifyDialog();
        manager()->accept();
        QCOMPARE(manager()->currentDialog(), &failure);
        manager()->accept();
    }

    void anOpenDialogFollowsItsTexts()
    {
        const auto question = request("question");
        question->notifyDialog();
        QSignalSpy changed(question.get(), &KIVNotification::changed);
        question->setMsg("new text");
        question->setMsg("new text");
        question->setError();
        QCOMPARE(changed.size(), 2);
        QCOMPARE(manager()->currentDialog()->msg(), QString("new text"));
        manager()->accept();
    }
};

QTEST_GUILESS_MAIN(NotificationsTest)
#include "tst_notifications.moc"
