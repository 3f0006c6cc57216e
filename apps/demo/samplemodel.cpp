#include "samplemodel.h"

#include <QLocale>

#include <cmath>

namespace uiutils::demo {

SampleModel::SampleModel(Words title, const QString& unit, int mostDecimals, const Limit& limit, QObject* parent)
    : QAbstractListModel(parent)
    , m_title(title)
    , m_unit(unit)
    , m_mostDecimals(mostDecimals)
    , m_limit(limit)
{
}

int SampleModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_samples.size();
}

QVariant SampleModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const double value = m_samples.at(index.row());
    switch (role) {
    case NumberRole:
        return index.row() + 1;
    case ValueRole:
        return value;
    case Qt::DisplayRole:
    case TextRole:
        return text(value);
    case StatusRole:
        return statusOf(value);
    case StatusTextRole:
        return statusText(statusOf(value));
    default:
        return {};
    }
}

QHash<int, QByteArray> SampleModel::roleNames() const
{
    return {{NumberRole, "number"}, {ValueRole, "value"}, {TextRole, "text"}, {StatusRole, "status"},
            {StatusTextRole, "statusText"}};
}

QString SampleModel::limitText() const
{
    return (m_limit.kind == Limit::AtMost ? tr("at most %1") : tr("at least %1")).arg(text(m_limit.bound));
}

void SampleModel::setLimit(double limit)
{
    if (!(limit >= 0) || limit == m_limit.bound)
        return;
    m_limit.bound = limit;
    Q_EMIT limitChanged();
    if (m_samples.isEmpty())
        return;
    Q_EMIT dataChanged(index(0), index(count() - 1), {StatusRole, StatusTextRole});
    Q_EMIT statusChanged();
}

QString SampleModel::numberText(double value) const
{
    const int digitsBeforePoint = value > 0 ? int(std::floor(std::log10(value))) + 1 : 0;
    return QLocale().toString(value, 'f', qBound(0, 3 - digitsBeforePoint, m_mostDecimals));
}

QString SampleModel::text(double value) const
{
    return numberText(value) + QLatin1Char(' ') + m_unit;
}

QString SampleModel::statusText(int status)
{
    switch (status) {
    case Status::Pass:
        return tr("Pass");
    case Status::Marginal:
        return tr("Marginal");
    case Status::Fail:
        return tr("Fail");
    default:
        return {};
    }
}

void SampleModel::append(double value)
{
    beginInsertRows({}, count(), count());
    m_samples.append(value);
    m_statistics = statisticsOf(m_samples);
    endInsertRows();
    Q_EMIT samplesChanged();
    Q_EMIT statusChanged();
}

QVariantList SampleModel::values() const
{
    QVariantList values;
    for (const double sample : m_samples)
        values += sample;
    return values;
}

void SampleModel::clear()
{
    if (!m_samples.isEmpty())
        setValues({});
}

void SampleModel::setValues(const QVector<double>& samples)
{
    beginResetModel();
    m_samples = samples;
    m_statistics = statisticsOf(samples);
    endResetModel();
    Q_EMIT samplesChanged();
    Q_EMIT statusChanged();
}

} // namespace uiutils::demo
