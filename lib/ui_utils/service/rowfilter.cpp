#include "service/rowfilter.h"

#include "core/searchwords_p.h"
#include "core/usercollator_p.h"
#include "languages/languages.h"

#include <QDateTime>

#include <cmath>

namespace uiutils {

namespace {

constexpr int unknownRole = -1;

/// What can be sorted, in this order.
enum class Kind { Number, Time, Text, Nothing };

Kind kindOf(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Float:
    case QMetaType::Double:
        return std::isnan(value.toDouble()) ? Kind::Nothing : Kind::Number;
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return Kind::Number;
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return value.toDateTime().isValid() ? Kind::Time : Kind::Nothing;
    default:
        return value.toString().isEmpty() ? Kind::Nothing : Kind::Text;
    }
}

bool isFraction(const QVariant& value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

template<typename Value> int compared(const Value& a, const Value& b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

} // namespace

class RowFilterPrivate
{
public:
    explicit RowFilterPrivate(RowFilter* filter)
        : q(filter)
    {
    }

    /// The numbers of the roles with these names, which a model may give anew with every reset.
    QVector<int> roles(const QStringList& names) const;
    bool hasWords(const QModelIndex& index) const;
    bool hasValue(const QModelIndex& index) const;
    int sortRole() const;
    /// Negative if `a` comes before `b`, 0 if both are equal.
    int compare(const QVariant& a, const QVariant& b) const;
    void sort();
    void count();

    RowFilter* const q;
    QCollator collator = userCollator();
    /// The number of the role `sortBy` once it is known: a model may have it only with the first row.
    mutable int sortNumber = unknownRole;
    QMetaObject::Connection deletion;
    QString text;
    SearchWords words;
    QStringList textRoles;
    QString role;
    QVariantList values;
    QStringList valueTexts;
    QString sortBy;
    bool isDescending = false;
    int lastCount = 0;
};

QVector<int> RowFilterPrivate::roles(const QStringList& names) const
{
    QVector<int> numbers;
    const QHash<int, QByteArray> known = q->roleNames();
    for (auto it = known.cbegin(); it != known.cend(); ++it) {
        if (names.isEmpty() || names.contains(QString::fromUtf8(it.value())))
            numbers += it.key();
    }
    return numbers;
}

bool RowFilterPrivate::hasWords(const QModelIndex& index) const
{
    if (words.isEmpty())
        return true;
    QStringList texts;
    const QVector<int> numbers = roles(textRoles);
    for (const int number : numbers)
        texts += index.data(number).toString();
    return words.areIn(texts);
}

bool RowFilterPrivate::hasValue(const QModelIndex& index) const
{
    if (valueTexts.isEmpty() || role.isEmpty())
        return true;
    const QVector<int> numbers = roles({role});
    return valueTexts.contains(numbers.isEmpty() ? QString() : index.data(numbers.constFirst()).toString());
}

int RowFilterPrivate::sortRole() const
{
    if (sortNumber == unknownRole)
        sortNumber = roles({sortBy}).value(0, unknownRole);
    return sortNumber;
}

int RowFilterPrivate::compare(const QVariant& a, const QVariant& b) const
{
    const Kind kind = kindOf(a);
    const Kind other = kindOf(b);
    if (kind != other) {
        const bool isMissing = kind == Kind::Nothing || other == Kind::Nothing;
        return isMissing && isDescending ? compared(other, kind) : compared(kind, other);
    }
    switch (kind) {
    case Kind::Number:
        // Large whole numbers are not the same as fractions.
        return isFraction(a) || isFraction(b) ? compared(a.toDouble(), b.toDouble())
                                              : compared(a.toLongLong(), b.toLongLong());
    case Kind::Time:
        return compared(a.toDateTime(), b.toDateTime());
    case Kind::Text:
        return collator.compare(a.toString(), b.toString());
    case Kind::Nothing:
        break;
    }
    return 0;
}

void RowFilterPrivate::sort()
{
    const int column = sortBy.isEmpty() ? -1 : 0;
    const Qt::SortOrder order = isDescending ? Qt::DescendingOrder : Qt::AscendingOrder;
    sortNumber = unknownRole;
    if (column == q->sortColumn() && order == q->sortOrder())
        q->invalidate();
    else
        q->QSortFilterProxyModel::sort(column, order);
}

void RowFilterPrivate::count()
{
    const int now = q->rowCount();
    if (now == lastCount)
        return;
    lastCount = now;
    Q_EMIT q->countChanged();
}

RowFilter::RowFilter(QObject* parent)
    : QSortFilterProxyModel(parent)
    , d(std::make_unique<RowFilterPrivate>(this))
{
    const auto follow = [this] { d->count(); };
    connect(this, &QAbstractItemModel::rowsInserted, this, follow);
    connect(this, &QAbstractItemModel::rowsRemoved, this, follow);
    connect(this, &QAbstractItemModel::modelReset, this, follow);
    connect(this, &QAbstractItemModel::layoutChanged, this, follow);
    // Another table may give its roles other numbers.
    connect(this, &QAbstractItemModel::modelAboutToBeReset, this, [this] { d->sortNumber = unknownRole; });
    connect(Languages::instance(), &Languages::currentChanged, this, [this] {
        d->collator = userCollator();
        d->sort();
    });
}

RowFilter::~RowFilter() = default;

QString RowFilter::text() const
{
    return d->text;
}

void RowFilter::setText(const QString& text)
{
    if (text == d->text)
        return;
    d->text = text;
    d->words = SearchWords(text);
    invalidateFilter();
    Q_EMIT textChanged();
}

QStringList RowFilter::textRoles() const
{
    return d->textRoles;
}

void RowFilter::setTextRoles(const QStringList& names)
{
    if (names == d->textRoles)
        return;
    d->textRoles = names;
    invalidateFilter();
    Q_EMIT textRolesChanged();
}

QString RowFilter::role() const
{
    return d->role;
}

void RowFilter::setRole(const QString& name)
{
    if (name == d->role)
        return;
    d->role = name;
    invalidateFilter();
    Q_EMIT roleChanged();
}

QVariantList RowFilter::values() const
{
    return d->values;
}

void RowFilter::setValues(const QVariantList& values)
{
    QStringList texts;
    for (const QVariant& value : values)
        texts += value.toString();
    // QVariant takes true and 1 for equal.
    if (values == d->values && texts == d->valueTexts)
        return;
    d->values = values;
    d->valueTexts = texts;
    invalidateFilter();
    Q_EMIT valuesChanged();
}

QString RowFilter::sortBy() const
{
    return d->sortBy;
}

void RowFilter::setSortBy(const QString& name)
{
    if (name == d->sortBy)
        return;
    d->sortBy = name;
    d->sort();
    Q_EMIT sortByChanged();
}

bool RowFilter::isDescending() const
{
    return d->isDescending;
}

void RowFilter::setDescending(bool isDescending)
{
    if (isDescending == d->isDescending)
        return;
    d->isDescending = isDescending;
    d->sort();
    Q_EMIT descendingChanged();
}

void RowFilter::setSourceModel(QAbstractItemModel* model)
{
    disconnect(d->deletion);
    QSortFilterProxyModel::setSourceModel(model);
    // Qt would leave views with the rows of the deleted model.
    if (model)
        d->deletion = connect(model, &QObject::destroyed, this, [this] { setSourceModel(nullptr); });
    d->sort();
    d->count();
}

/// Qt would return those that the model had when it was set.
QHash<int, QByteArray> RowFilter::roleNames() const
{
    const QAbstractItemModel* const model = sourceModel();
    return model ? model->roleNames() : QHash<int, QByteArray>();
}

QVariantMap RowFilter::get(int row) const
{
    QVariantMap values;
    const QModelIndex place = index(row, 0);
    const QHash<int, QByteArray> names = place.isValid() ? roleNames() : QHash<int, QByteArray>();
    for (auto it = names.cbegin(); it != names.cend(); ++it)
        values.insert(QString::fromUtf8(it.value()), place.data(it.key()));
    return values;
}

bool RowFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex place = sourceModel()->index(row, 0, parent);
    return d->hasWords(place) && d->hasValue(place);
}

bool RowFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int role = d->sortRole();
    const int result = role == unknownRole ? 0 : d->compare(left.data(role), right.data(role));
    // The order of the model in either direction, also for rows that come later.
    const bool isBefore = d->isDescending ? right.row() < left.row() : left.row() < right.row();
    return result == 0 ? isBefore : result < 0;
}

} // namespace uiutils
