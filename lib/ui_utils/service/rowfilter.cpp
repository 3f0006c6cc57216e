#include "service/rowfilter.h"

#include <QCollator>

#include <algorithm>

namespace uiutils {

class RowFilterPrivate
{
public:
    explicit RowFilterPrivate(RowFilter* filter)
        : q(filter)
    {
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    /// The numbers of the roles with these names, which a model may give anew with every reset.
    QVector<int> roles(const QStringList& names) const;
    bool hasWords(const QModelIndex& index) const;
    bool hasValue(const QModelIndex& index) const;
    void sort() const;
    void count();

    RowFilter* const q;
    QCollator collator;
    QString text;
    QStringList words;
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
    return std::all_of(words.cbegin(), words.cend(), [&](const QString& word) {
        return std::any_of(texts.cbegin(), texts.cend(),
                [&](const QString& candidate) { return candidate.contains(word, Qt::CaseInsensitive); });
    });
}

bool RowFilterPrivate::hasValue(const QModelIndex& index) const
{
    if (valueTexts.isEmpty())
        return true;
    const QVector<int> numbers = role.isEmpty() ? QVector<int>() : roles({role});
    return !numbers.isEmpty() && valueTexts.contains(index.data(numbers.constFirst()).toString());
}

void RowFilterPrivate::sort() const
{
    const QVector<int> numbers = sortBy.isEmpty() ? QVector<int>() : roles({sortBy});
    if (!numbers.isEmpty())
        q->setSortRole(numbers.constFirst());
    q->QSortFilterProxyModel::sort(numbers.isEmpty() ? -1 : 0, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
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
    d->words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
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
    if (values == d->values)
        return;
    d->values = values;
    d->valueTexts.clear();
    for (const QVariant& value : values)
        d->valueTexts += value.toString();
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
    QSortFilterProxyModel::setSourceModel(model);
    d->sort();
    d->count();
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
    const QVariant a = left.data(sortRole());
    const QVariant b = right.data(sortRole());
    if (a.userType() == QMetaType::QString && b.userType() == QMetaType::QString)
        return d->collator.compare(a.toString(), b.toString()) < 0;
    return QSortFilterProxyModel::lessThan(left, right);
}

} // namespace uiutils
