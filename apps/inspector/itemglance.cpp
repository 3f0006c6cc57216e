#include "itemglance.h"

#include "itemtext.h"
#include "languages/languages.h"
#include "service/kivdata.h"
#include "texts.h"

#include <kiv/kivclientinterface.h>

#include <QAbstractItemModel>

namespace uiutils::inspector {

namespace {

constexpr int pauseMs = 100;

QString troubleOf(KivData& item)
{
    const KIVClientInterface* const client = item.getClient();
    if (!client || !client->getItem(item.getId()))
        return Texts::tr("Not available");
    if (!item.isReady())
        return Texts::tr("Not ready");
    return item.isApplicable() ? QString() : Texts::tr("Not applicable");
}

} // namespace

ItemGlance::ItemGlance(QObject* parent)
    : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMs);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        if (m_isStale)
            note();
    });
    connect(Languages::instance(), &Languages::currentChanged, this, &ItemGlance::note);
}

QObject* ItemGlance::item() const
{
    return m_item;
}

void ItemGlance::setItem(QObject* item)
{
    auto* const other = qobject_cast<KivData*>(item);
    if (other == m_item)
        return;
    if (m_item)
        m_item->disconnect(this);
    disconnect(m_table);
    m_item = other;
    for (QString* const text : {&m_title, &m_name, &m_type})
        text->clear();
    if (m_item) {
        for (const auto signal : {&KivData::valueChanged, &KivData::unitsChanged, &KivData::isReadyChanged,
                     &KivData::qualityCodeChanged, &KivData::applicableChanged, &KivData::enumCountChanged})
            connect(m_item, signal, this, &ItemGlance::note);
        // A table announces its rows by its model.
        if (const auto* const table = qobject_cast<QAbstractItemModel*>(m_item->getValue().value<QObject*>()))
            m_table = connect(table, &QAbstractItemModel::modelReset, this, &ItemGlance::note);
    }
    m_pause.stop();
    look();
    Q_EMIT itemChanged();
}

/// The first change shows at once.
void ItemGlance::note()
{
    m_isStale = m_pause.isActive();
    if (m_isStale)
        return;
    m_pause.start();
    look();
}

/// The description goes with the service.
void ItemGlance::describe()
{
    const QString type = m_item->getType();
    if (type.isEmpty() && !m_title.isEmpty())
        return;
    m_type = type;
    m_title = m_item->getLabel().isEmpty() ? m_item->getName() : m_item->getLabel();
    m_name = m_item->getQmlTag().isEmpty() ? m_item->getId() : m_item->getQmlTag();
}

bool ItemGlance::isNumber() const
{
    static const QStringList numbers {
            QStringLiteral("bool"), QStringLiteral("int"), QStringLiteral("uint"), QStringLiteral("double")};
    return numbers.contains(m_type);
}

void ItemGlance::look()
{
    m_isStale = false;
    if (m_item)
        describe();
    m_text = m_item ? shortText(*m_item) : QString();
    m_trouble = m_item ? troubleOf(*m_item) : QString();
    m_quality = m_item ? m_item->getQualityCode() : 0;
    Q_EMIT changed();
}

} // namespace uiutils::inspector
