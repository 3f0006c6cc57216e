#pragma once

#include <QColor>
#include <QImage>
#include <QQuickItem>

namespace uiutils {

/// What draws an Icon: a drawing of the module in one colour, made for the pixels of the screen. Drawings that point
/// along the text turn with the layout of the application.
class IconPicture : public QQuickItem
{
    Q_OBJECT
    /// The name of the drawing, such as "home"; empty for none. An unknown name shows nothing and is logged.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    /// Width and height.
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit IconPicture(QQuickItem* parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString& name);
    qreal size() const { return m_size; }
    void setSize(qreal size);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void nameChanged();
    void sizeChanged();
    void colorChanged();

protected:
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QString m_name;
    qreal m_size = 0;
    QColor m_color = Qt::black;
    QImage m_picture;
    bool m_isNew = false;
};

} // namespace uiutils
