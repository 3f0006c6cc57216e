#pragma once

#include "limit.h"
#include "statistics.h"

#include <QAbstractListModel>
#include <QString>
#include <QVariantList>
#include <QVector>

namespace uiutils::demo {

/// The samples of one measured quantity in the order in which they were taken, their statistics and the status of each
/// against the quantity's limit.
///
/// A row's roles are "number" (from 1), "value", "text" (number and unit in the user's locale), "status" (a
/// code of Status) and "statusText".
class SampleModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString unit READ unit CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY samplesChanged)
    Q_PROPERTY(double minimum READ minimum NOTIFY samplesChanged)
    Q_PROPERTY(double median READ median NOTIFY samplesChanged)
    Q_PROPERTY(double maximum READ maximum NOTIFY samplesChanged)
    Q_PROPERTY(double jitter READ jitter NOTIFY samplesChanged)
    /// Status of the median; Status::None without samples.
    Q_PROPERTY(int status READ status NOTIFY statusChanged)
    Q_PROPERTY(double limit READ limit WRITE setLimit NOTIFY limitChanged)
    /// The limit in words: "at most 1.00 ms".
    Q_PROPERTY(QString limitText READ limitText NOTIFY limitChanged)

public:
    enum Role { NumberRole = Qt::UserRole + 1, ValueRole, TextRole, StatusRole, StatusTextRole };

    /// Requests a text in the language of the moment.
    using Words = QString (*)();

    /// Texts show three significant digits, with at most `mostDecimals` of them after the point.
    SampleModel(Words title, const QString& unit, int mostDecimals, const Limit& limit, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString title() const { return m_title(); }
    QString unit() const { return m_unit; }
    int count() const { return m_samples.size(); }
    double minimum() const { return m_statistics.minimum; }
    double median() const { return m_statistics.median; }
    double maximum() const { return m_statistics.maximum; }
    double jitter() const { return m_statistics.jitter; }
    int status() const { return m_samples.isEmpty() ? Status::None : m_limit.judge(median()); }
    double limit() const { return m_limit.bound; }
    QString limitText() const;

    /// Judges every sample again. A negative limit, or NaN, is ignored.
    void setLimit(double limit);

    /// A number of this quantity without its unit, for a large figure.
    Q_INVOKABLE QString numberText(double value) const;
    /// A number of this quantity with its unit.
    Q_INVOKABLE QString text(double value) const;
    /// The status of a value against the limit.
    Q_INVOKABLE int statusOf(double value) const { return m_limit.judge(value); }
    /// The sample in that row, from 0; 0 outside the rows.
    Q_INVOKABLE double valueAt(int row) const { return m_samples.value(row); }
    /// "Pass", "Marginal", "Fail", or empty for any other code.
    Q_INVOKABLE static QString statusText(int status);

    void append(double value);
    /// All samples in their order.
    QVariantList values() const;
    /// Replaces all samples.
    void setValues(const QVector<double>& samples);
    void clear();

Q_SIGNALS:
    void samplesChanged();
    void statusChanged();
    void limitChanged();

private:
    const Words m_title;
    const QString m_unit;
    const int m_mostDecimals;
    Limit m_limit;
    QVector<double> m_samples;
    Statistics m_statistics;
};

} // namespace uiutils::demo
