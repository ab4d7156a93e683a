// SPDX-License-Identifier: MIT
#include "Stepper.h"

#include "Accessibility.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <algorithm>

namespace abissora {

namespace {

/// Read as a number and, with its unit, as a text that has neither cursor nor selection.
class StepperInterface final : public QAccessibleWidget,
                               public QAccessibleValueInterface,
                               public QAccessibleTextInterface
{
public:
    explicit StepperInterface(Stepper* stepper)
        : QAccessibleWidget(stepper, QAccessible::SpinBox)
    {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? stepper()->text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }

    [[nodiscard]] QVariant currentValue() const override { return stepper()->value(); }
    void setCurrentValue(const QVariant& value) override { stepper()->edit(value.toLongLong()); }
    [[nodiscard]] QVariant maximumValue() const override { return stepper()->maximum(); }
    [[nodiscard]] QVariant minimumValue() const override { return stepper()->minimum(); }
    [[nodiscard]] QVariant minimumStepSize() const override { return stepper()->singleStep(); }

    using QAccessibleWidget::text;
    [[nodiscard]] QString text(int start, int end) const override { return stepper()->text().mid(start, end - start); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(stepper()->text().size()); }
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    [[nodiscard]] QRect characterRect(int) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint&) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    [[nodiscard]] QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() << increaseAction() << decreaseAction();
    }
    void doAction(const QString& action) override
    {
        if (action == increaseAction())
            stepper()->stepUp();
        else if (action == decreaseAction())
            stepper()->stepDown();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    [[nodiscard]] Stepper* stepper() const { return static_cast<Stepper*>(object()); }
};

} // namespace

Stepper::Stepper(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    setAccessibleInterface<StepperInterface>(*this);
    setButtonSymbols(PlusMinus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    lineEdit()->setReadOnly(true);
    lineEdit()->setFocusPolicy(Qt::NoFocus);
    // After the line edit's, which it passes on; not by the wheel, which then belongs to the scroll area around.
    setFocusPolicy(Qt::StrongFocus);
    lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
    present(m_value);
}

void Stepper::setValue(qint64 value)
{
    if (value != m_value)
        present(value);
}

void Stepper::setRange(qint64 minimum, qint64 maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    updateGeometry();
    update();
}

void Stepper::setSingleStep(qint64 step)
{
    m_step = step;
}

void Stepper::setSuffix(const QString& suffix)
{
    m_suffix = suffix;
    present(m_value);
    updateGeometry();
}

void Stepper::edit(qint64 value)
{
    const qint64 held = std::clamp(value, m_minimum, m_maximum);
    if (held == m_value)
        return;
    present(held);
    Q_EMIT edited(held);
}

void Stepper::stepBy(int steps)
{
    // From a value outside the range a step leads back into it, never further out.
    edit(std::clamp(m_value, m_minimum, m_maximum) == m_value ? m_value + steps * m_step : m_value);
}

QAbstractSpinBox::StepEnabled Stepper::stepEnabled() const
{
    StepEnabled enabled = StepNone;
    if (m_value < m_maximum)
        enabled |= StepUpEnabled;
    if (m_value > m_minimum)
        enabled |= StepDownEnabled;
    return enabled;
}

void Stepper::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Home:
        edit(m_minimum);
        return;
    case Qt::Key_End:
        edit(m_maximum);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QAbstractSpinBox::keyPressEvent(event);
        return;
    default:
        event->ignore();
    }
}

void Stepper::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(event);
    else
        event->ignore();
}

QSize Stepper::sizeHint() const
{
    ensurePolished();
    int width = 0;
    for (const qint64 value : {m_minimum, m_maximum, m_value})
        width = std::max(width, fontMetrics().horizontalAdvance(textOf(value)));
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    constexpr int cursorRoom = 6;
    const QSize contents(width + cursorRoom, lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, this);
}

QSize Stepper::minimumSizeHint() const
{
    return sizeHint();
}

QString Stepper::textOf(qint64 value) const
{
    return QString::number(value) + m_suffix;
}

void Stepper::present(qint64 value)
{
    const QString before = text();
    m_value = value;
    lineEdit()->setText(textOf(value));
    lineEdit()->deselect();
    update();
    QAccessibleValueChangeEvent event(this, QVariant(value));
    QAccessible::updateAccessibility(&event);
    QAccessibleTextUpdateEvent textEvent(this, 0, before, text());
    QAccessible::updateAccessibility(&textEvent);
}

} // namespace abissora
