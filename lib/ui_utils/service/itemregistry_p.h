#pragma once

#include <QMap>
#include <QPointer>
#include <QString>
#include <QVector>

class KivData;
class QQmlContext;

/// All wrappers of the process by the ids of their items, as plain pointers, and the context in which QML finds them.
namespace uiutils::itemregistry {

/// The wrapper of each id; null after the last one of the id has been deleted.
QMap<QString, KivData*>& entries();
/// The context last given to Manifest::setQmlContext().
QPointer<QQmlContext>& qmlContext();

/// The wrapper that has the entry of the id; null without one.
KivData* find(const QString& id);
/// Gives the entry of the id to a wrapper. The one that had it is displaced.
void enter(const QString& id, KivData* wrapper);
/// Takes out a wrapper that is being deleted. Its entry returns to the wrapper that was displaced last.
void forget(const QString& id, const KivData* wrapper);

/// The wrappers of an id whose entry later ones have taken, the earliest first.
QVector<KivData*> displaced(const QString& id);
bool hasDisplaced();

/// What those who use names are told of: the names that stand for another wrapper now, or all, because an item that has
/// returned may answer otherwise than before.
enum class Told { Changes, All };

/// Whoever finds wrappers by their names. It is listed from its construction to its destruction.
class NameUser
{
public:
    NameUser();
    virtual ~NameUser();
    Q_DISABLE_COPY_MOVE(NameUser)

    /// The names may stand for other wrappers than before.
    virtual void look(Told told) = 0;
};

/// Makes everybody who uses names look again.
void tellNameUsers(Told told);

} // namespace uiutils::itemregistry
