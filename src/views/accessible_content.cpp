#include "views/accessible_content.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QLabel>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <memory>

namespace ferrow {
namespace {

// What a label or a spacer is given, kept on the widget itself for the factory to find.
enum class Treatment { heading = 1, readWhenAsked, hidden };
constexpr char kTreatment[] = "ferrowAccessibleTreatment";

// A treated label as a widget with content of its own: its text, in its role.
class LabelContent : public AccessibleContent {
public:
    LabelContent(const QLabel *label, QAccessible::Role role) : m_label(label), m_role(role) {}
    AccessibleItem accessibleSelf() const override { return {m_role, m_label ? m_label->text() : QString(), {}}; }

private:
    QPointer<const QLabel> m_label;
    QAccessible::Role m_role;
};

// Every widget that reads from AccessibleContent: its own element, then its parts, then the
// widgets in it. The parts are made when first asked for and live as long as the widget.
class ContentAccessible : public QAccessibleWidget {
public:
    ContentAccessible(QWidget *widget, const AccessibleContent *content, std::unique_ptr<AccessibleContent> owned = {}, bool hidden = false)
        : QAccessibleWidget(widget, QAccessible::Client)
        , m_content(owned ? owned.get() : content)
        , m_owned(std::move(owned))
        , m_hidden(hidden)
    {
    }

    ~ContentAccessible() override
    {
        for (const QAccessible::Id id : m_parts) {
            if (id)
                QAccessible::deleteAccessibleInterface(id);
        }
    }

    const AccessibleContent *content() const { return m_content; }

    QAccessible::Role role() const override { return m_hidden ? QAccessible::Client : m_content->accessibleSelf().role; }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = state.invisible || m_hidden;
        return state;
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name && !m_hidden) {
            const QString name = m_content->accessibleSelf().name;
            // A treated label's text is its name, even empty: its accessible name only keeps QLabel quiet.
            if (!name.isEmpty() || m_owned)
                return name;
        }
        return QAccessibleWidget::text(t);
    }

    int childCount() const override { return m_hidden ? 0 : partCount() + QAccessibleWidget::childCount(); }

    // A painted button is pressed as any other.
    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (!m_hidden && qobject_cast<QAbstractButton *>(widget()))
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &action) override
    {
        if (auto *button = qobject_cast<QAbstractButton *>(widget()); button && action == pressAction() && !m_hidden) {
            button->click();
            return;
        }
        QAccessibleWidget::doAction(action);
    }

    QAccessibleInterface *child(int index) const override
    {
        if (m_hidden || index < 0)
            return nullptr;
        const int parts = partCount();
        return index < parts ? part(index) : QAccessibleWidget::child(index - parts);
    }

    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    int partCount() const { return static_cast<int>(m_content->accessibleParts().size()); }
    QAccessibleInterface *part(int index) const;

    const AccessibleContent *m_content;
    std::unique_ptr<AccessibleContent> m_owned;
    bool m_hidden;
    mutable std::vector<QAccessible::Id> m_parts;
};

// One part of a widget's content; reads it afresh each time it is asked.
class PartAccessible : public QAccessibleInterface {
public:
    PartAccessible(QWidget *widget, int index) : m_widget(widget), m_index(index) {}

    bool isValid() const override { return owner() && m_index < static_cast<int>(owner()->content()->accessibleParts().size()); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_widget ? m_widget->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override { return m_widget ? QAccessible::queryAccessibleInterface(m_widget) : nullptr; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *focusChild() const override { return nullptr; }
    void setText(QAccessible::Text, const QString &) override {}
    QString text(QAccessible::Text t) const override { return t == QAccessible::Name ? item().name : QString(); }
    QAccessible::Role role() const override { return item().role; }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !m_widget || !m_widget->isVisible();
        return state;
    }

    QRect rect() const override
    {
        if (!m_widget)
            return {};
        const QRect area = item().area.isEmpty() ? m_widget->rect() : item().area;
        return {m_widget->mapToGlobal(area.topLeft()), area.size()};
    }

private:
    const ContentAccessible *owner() const
    {
        return m_widget ? dynamic_cast<const ContentAccessible *>(QAccessible::queryAccessibleInterface(m_widget)) : nullptr;
    }

    AccessibleItem item() const
    {
        if (!isValid())
            return {};
        return owner()->content()->accessibleParts()[static_cast<std::size_t>(m_index)];
    }

    QPointer<QWidget> m_widget;
    int m_index;
};

int ContentAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    if (!child)
        return -1;
    if (!child->object()) { // one of the parts
        for (std::size_t i = 0; i < m_parts.size(); ++i) {
            if (m_parts[i] && QAccessible::accessibleInterface(m_parts[i]) == child)
                return static_cast<int>(i);
        }
        return -1;
    }
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : index + partCount();
}

QAccessibleInterface *ContentAccessible::part(int index) const
{
    const auto slot = static_cast<std::size_t>(index);
    if (slot >= m_parts.size())
        m_parts.resize(slot + 1, 0);
    if (!m_parts[slot])
        m_parts[slot] = QAccessible::registerAccessibleInterface(new PartAccessible(widget(), index));
    return QAccessible::accessibleInterface(m_parts[slot]);
}

QAccessibleInterface *factory(const QString &, QObject *object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    if (const auto *content = dynamic_cast<const AccessibleContent *>(widget))
        return new ContentAccessible(widget, content);
    const QVariant treatment = widget->property(kTreatment);
    if (!treatment.isValid())
        return nullptr;
    switch (static_cast<Treatment>(treatment.toInt())) {
    case Treatment::heading:
        return new ContentAccessible(widget, nullptr, std::make_unique<LabelContent>(qobject_cast<QLabel *>(widget), QAccessible::Heading));
    case Treatment::readWhenAsked:
        return new ContentAccessible(widget, nullptr, std::make_unique<LabelContent>(qobject_cast<QLabel *>(widget), QAccessible::StaticText));
    case Treatment::hidden:
        return new ContentAccessible(widget, nullptr, std::make_unique<AccessibleContent>(), true);
    }
    return nullptr;
}

void treat(QWidget *widget, Treatment treatment)
{
    widget->setProperty(kTreatment, static_cast<int>(treatment));
    // An interface made before the treatment (a label's text set as it was built) is made anew.
    if (QAccessibleInterface *made = QAccessible::queryAccessibleInterface(widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

} // namespace

void installViewAccessibility()
{
    QAccessible::installFactory(factory);
}

void markAsHeading(QLabel *label)
{
    treat(label, Treatment::heading);
}

void readWhenAsked(QLabel *label)
{
    treat(label, Treatment::readWhenAsked);
    // QLabel announces every new text of a label without an accessible name; this one is never
    // read, the interface reads the text.
    label->setAccessibleName(QStringLiteral(" "));
}

void hideFromAccessibility(QWidget *widget)
{
    treat(widget, Treatment::hidden);
}

void announceNameChange(QWidget *widget, int index)
{
    if (!QAccessible::isActive())
        return; // nobody to tell
    QAccessibleInterface *element = QAccessible::queryAccessibleInterface(widget);
    if (element && index >= 0)
        element = element->child(index);
    if (!element)
        return;
    QAccessibleEvent event(element, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace ferrow
