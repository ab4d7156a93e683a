// SPDX-License-Identifier: MIT
#pragma once

#include "RegisterSummary.h"
#include "TypeAppearance.h"

#include <QWidget>

class QAbstractButton;

namespace abissora {

class ElidedLabel;
class IconTile;

/// One item that needs service, with two buttons that both lead to the item.
class DueRow : public QWidget
{
    Q_OBJECT

public:
    enum Part { AddMaintenance, Details };

    explicit DueRow(QWidget* parent);

    [[nodiscard]] const Equipment& equipment() const { return m_equipment; }
    void setItem(const RegisterSummary::DueItem& item, const TypeAppearance& appearance);

    [[nodiscard]] QAbstractButton* button(Part part) const { return part == AddMaintenance ? m_add : m_details; }
    /// The button that is the window's focus widget.
    [[nodiscard]] std::optional<Part> focusedPart() const;

    /// What every row takes at the present text size.
    [[nodiscard]] static int rowHeight();

Q_SIGNALS:
    void chosen();
    /// A button got the focus; `byKeyboard` unless a click gave it.
    void focused(bool byKeyboard);
    /// A key that walks through rows: up, down, page up, page down, home or end.
    void walked(int key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose(QAbstractButton& button);

    Equipment m_equipment;
    IconTile* m_tile;
    ElidedLabel* m_name;
    ElidedLabel* m_state;
    QAbstractButton* m_add;
    QAbstractButton* m_details;
};

} // namespace abissora
