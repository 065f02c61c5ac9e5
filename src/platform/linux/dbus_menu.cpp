#include "platform/linux/dbus_menu.h"

#include <QAction>
#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QMenu>

namespace ferrow {
namespace {

// One entry and, for the root, the entries under it: (ia{sv}av), the children wrapped in variants.
struct DBusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<DBusMenuLayout> children;
};

struct DBusMenuItem {
    int id = 0;
    QVariantMap properties;
};
using DBusMenuItemList = QList<DBusMenuItem>;

struct DBusMenuItemKeys {
    int id = 0;
    QStringList properties;
};
using DBusMenuItemKeysList = QList<DBusMenuItemKeys>;

struct DBusMenuEvent {
    int id = 0;
    QString eventId;
    QDBusVariant data;
    uint timestamp = 0;
};
using DBusMenuEventList = QList<DBusMenuEvent>;

} // namespace
} // namespace ferrow

Q_DECLARE_METATYPE(ferrow::DBusMenuLayout)
Q_DECLARE_METATYPE(ferrow::DBusMenuItem)
Q_DECLARE_METATYPE(ferrow::DBusMenuItemKeys)
Q_DECLARE_METATYPE(ferrow::DBusMenuEvent)

namespace ferrow {
namespace {

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(qMetaTypeId<QDBusVariant>());
    for (const DBusMenuLayout &child : layout.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    layout.children.clear();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(qdbus_cast<DBusMenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItem &item)
{
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItem &item)
{
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItemKeys &keys)
{
    argument.beginStructure();
    argument << keys.id << keys.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItemKeys &keys)
{
    argument.beginStructure();
    argument >> keys.id >> keys.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event)
{
    argument.beginStructure();
    argument << event.id << event.eventId << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event)
{
    argument.beginStructure();
    argument >> event.id >> event.eventId >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

// Qt marks a mnemonic with "&", the menu protocol with "_".
QString dbusMenuLabel(const QString &text)
{
    QString label;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'_')
            label += QStringLiteral("__");
        else if (text[i] != u'&')
            label += text[i];
        else if (i + 1 < text.size() && text[i + 1] == u'&')
            label += text[++i];
        else
            label += u'_';
    }
    return label;
}

class DBusMenuAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    explicit DBusMenuAdaptor(QMenu &menu)
        : QDBusAbstractAdaptor(&menu)
        , m_menu(menu)
    {
    }

    uint version() const { return 3; }
    QString textDirection() const { return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr"); }
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

public slots:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames, DBusMenuLayout &layout)
    {
        layout = {parentId, properties(parentId, propertyNames), {}};
        if (parentId == kRootId && recursionDepth != 0) {
            for (int id = 1; id <= int(m_menu.actions().size()); ++id)
                layout.children.append({id, properties(id, propertyNames), {}});
        }
        return kRevision;
    }

    DBusMenuItemList GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames)
    {
        DBusMenuItemList items;
        for (const int id : ids) {
            if (id == kRootId || action(id))
                items.append({id, properties(id, propertyNames)});
        }
        return items;
    }

    QDBusVariant GetProperty(int id, const QString &name) { return QDBusVariant(properties(id, {name}).value(name)); }

    void Event(int id, const QString &eventId, const QDBusVariant &, uint) { handle(id, eventId); }

    QList<int> EventGroup(const DBusMenuEventList &events)
    {
        QList<int> unknown;
        for (const DBusMenuEvent &event : events) {
            if (!handle(event.id, event.eventId))
                unknown.append(event.id);
        }
        return unknown;
    }

    bool AboutToShow(int) { return false; } // the menu never changes once shown

    QList<int> AboutToShowGroup(const QList<int> &, QList<int> &idErrors)
    {
        idErrors.clear();
        return {};
    }

signals:
    void ItemsPropertiesUpdated(const DBusMenuItemList &updatedProps, const DBusMenuItemKeysList &removedProps);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    static constexpr int kRootId = 0;
    static constexpr uint kRevision = 1;

    // Entry id is the action's place in the menu, counted from 1.
    QAction *action(int id) const
    {
        const QList<QAction *> actions = m_menu.actions();
        return id >= 1 && id <= int(actions.size()) ? actions[id - 1] : nullptr;
    }

    QVariantMap properties(int id, const QStringList &names) const
    {
        QVariantMap all;
        if (id == kRootId) {
            all.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
        } else if (const QAction *entry = action(id)) {
            if (entry->isSeparator()) {
                all.insert(QStringLiteral("type"), QStringLiteral("separator"));
            } else {
                all.insert(QStringLiteral("label"), dbusMenuLabel(entry->text()));
                if (!entry->isEnabled())
                    all.insert(QStringLiteral("enabled"), false);
            }
            if (!entry->isVisible())
                all.insert(QStringLiteral("visible"), false);
        }
        if (names.isEmpty())
            return all;
        QVariantMap chosen;
        for (const QString &name : names) {
            if (all.contains(name))
                chosen.insert(name, all.value(name));
        }
        return chosen;
    }

    bool handle(int id, const QString &eventId)
    {
        QAction *entry = action(id);
        if (!entry)
            return id == kRootId;
        // After the reply has gone: the action may end the program.
        if (eventId == u"clicked" && entry->isEnabled() && !entry->isSeparator())
            QMetaObject::invokeMethod(entry, &QAction::trigger, Qt::QueuedConnection);
        return true;
    }

    QMenu &m_menu;
};

} // namespace

bool exportDBusMenu(QDBusConnection &bus, const QString &path, QMenu &menu)
{
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuItem>();
    qDBusRegisterMetaType<DBusMenuItemList>();
    qDBusRegisterMetaType<DBusMenuItemKeys>();
    qDBusRegisterMetaType<DBusMenuItemKeysList>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<DBusMenuEventList>();
    // Qt finds the types of a method's arguments by the names they are written with.
    qRegisterMetaType<DBusMenuLayout>("DBusMenuLayout");
    qRegisterMetaType<DBusMenuItemList>("DBusMenuItemList");
    qRegisterMetaType<DBusMenuItemKeysList>("DBusMenuItemKeysList");
    qRegisterMetaType<DBusMenuEventList>("DBusMenuEventList");
    new DBusMenuAdaptor(menu); // owned by the menu
    return bus.registerObject(path, &menu, QDBusConnection::ExportAdaptors);
}

} // namespace ferrow

#include "dbus_menu.moc"
