// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>

namespace abissora {

/// A value with its unit, changed in steps by two buttons, the arrow and page keys, Home, End, and the wheel while it
/// has the focus. Only stepping holds the value to the range: a value set from outside is shown as it is.
class Stepper : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit Stepper(QWidget* parent = nullptr);

    [[nodiscard]] qint64 value() const { return m_value; }
    /// Emits nothing.
    void setValue(qint64 value);
    [[nodiscard]] qint64 minimum() const { return m_minimum; }
    [[nodiscard]] qint64 maximum() const { return m_maximum; }
    void setRange(qint64 minimum, qint64 maximum);
    [[nodiscard]] qint64 singleStep() const { return m_step; }
    void setSingleStep(qint64 step);
    /// Follows the number as it is, its leading space included.
    void setSuffix(const QString& suffix);

    /// As if the person had chosen the value: held to the range, emitted when it differs.
    void edit(qint64 value);

    void stepBy(int steps) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void edited(qint64 value);

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] QString textOf(qint64 value) const;
    void present(qint64 value);

    qint64 m_value = 0;
    qint64 m_minimum = 0;
    qint64 m_maximum = 99;
    qint64 m_step = 1;
    QString m_suffix;
};

} // namespace abissora
