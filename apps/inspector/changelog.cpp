#include "changelog.h"

#include "texts.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>

namespace uiutils::inspector {

namespace {

constexpr int showMs = 100;
constexpr double msInSecond = 1000;

QString kindWord(ChangeLog::Kind kind)
{
    switch (kind) {
    case ChangeLog::Value:
        return Texts::tr("Value");
    case ChangeLog::Unit:
        return Texts::tr("Unit");
    case ChangeLog::Readiness:
        return Texts::tr("Readiness");
    case ChangeLog::Quality:
        return Texts::tr("Quality");
    case ChangeLog::Applicability:
        return Texts::tr("Applicability");
    case ChangeLog::Error:
        return Texts::tr("Error");
    case ChangeLog::Service:
        return Texts::tr("Service");
    }
    return QString();
}

QString timeText(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time).toString(QStringLiteral("HH:mm:ss.zzz"));
}

} // namespace

ChangeLog::ChangeLog(int capacity, const Clock& clock, QObject* parent)
    : QAbstractListModel(parent)
    , m_capacity(qMax(capacity, 1))
    , m_clock(clock ? clock : [] { return QDateTime::currentMSecsSinceEpoch(); })
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(showMs);
    connect(&m_timer, &QTimer::timeout, this, &ChangeLog::flush);
}

void ChangeLog::add(Change change)
{
    if (!m_timer.isActive())
        m_timer.start();
    if (m_isPaused) {
        ++m_missed;
        return;
    }
    change.time = m_clock();
    m_fresh.push_back(std::move(change));
    // An event loop that does not run must not make the log grow.
    if (int(m_fresh.size()) >= m_capacity)
        flush();
}

void ChangeLog::flush()
{
    m_timer.stop();
    if (!m_fresh.empty()) {
        const int added = int(m_fresh.size());
        discardOldest(qMin(count(), count() + added - m_capacity));
        beginInsertRows(QModelIndex(), 0, added - 1);
        for (Change& change : m_fresh)
            m_changes.push_front(std::move(change));
        m_fresh.clear();
        endInsertRows();
    }
    Q_EMIT countChanged();
}

void ChangeLog::discardOldest(int count)
{
    if (count <= 0)
        return;
    beginRemoveRows(QModelIndex(), this->count() - count, this->count() - 1);
    m_changes.erase(m_changes.end() - count, m_changes.end());
    m_fallen += count;
    endRemoveRows();
}

void ChangeLog::setPaused(bool isPaused)
{
    if (isPaused == m_isPaused)
        return;
    flush();
    m_isPaused = isPaused;
    Q_EMIT pausedChanged();
}

void ChangeLog::clear()
{
    beginResetModel();
    m_changes.clear();
    m_fresh.clear();
    m_fallen = 0;
    m_missed = 0;
    endResetModel();
    Q_EMIT countChanged();
}

QVariantList ChangeLog::history(const QString& id)
{
    flush();
    QVariantList times;
    QVariantList values;
    for (auto change = m_changes.crbegin(); change != m_changes.crend(); ++change) {
        if (change->kind != Value || change->id != id || std::isnan(change->number))
            continue;
        times += double(change->time) / msInSecond;
        values += change->number;
    }
    return {times, values};
}

int ChangeLog::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ChangeLog::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const Change& change = m_changes[size_t(index.row())];
    switch (role) {
    case TimeRole:
        return timeText(change.time);
    case IdRole:
        return change.id;
    case NameRole:
        return change.name;
    case KindRole:
        return kindWord(change.kind);
    case TextRole:
        return change.text;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> ChangeLog::roleNames() const
{
    return {{TimeRole, "rowTime"}, {IdRole, "rowId"}, {NameRole, "rowName"}, {KindRole, "rowKind"},
            {TextRole, "rowText"}};
}

} // namespace uiutils::inspector
