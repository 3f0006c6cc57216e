#pragma once

#include "page.h"
#include "workload.h"

#include <QHash>
#include <QObject>

#include <memory>
#include <vector>

namespace bench {

class PlainLabels;

/// A program that shows the items of QtSender in objects as one would write them by hand.
class QtClient : public QObject
{
    Q_OBJECT

public:
    QtClient();
    ~QtClient() override;

    /// Without a page, for who only watches.
    void listen();
    void open(int count, int first, int step);
    /// Answers from now on whenever the slot hears of the item.
    void watch(int item);
    void settle(int changes) const;

private Q_SLOTS:
    void onChanged(const bench::ItemMaps& changes);

private:
    QString m_watched;
    std::vector<std::unique_ptr<PlainLabels>> m_items;
    QHash<QString, PlainLabels*> m_byId;
    std::unique_ptr<Page> m_page;
};

} // namespace bench
