// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QAccessible>

namespace abissora {

/// One of the buttons of a SegmentedControl.
class Segment final : public QAbstractButton
{
    Q_OBJECT

public:
    Segment(QAccessible::Role role, const QString& symbol, const QString& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] QFont textFont() const;
    [[nodiscard]] int contentWidth() const;

    QString m_symbol;
};

} // namespace abissora
