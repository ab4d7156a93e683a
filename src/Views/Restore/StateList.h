// SPDX-License-Identifier: MIT
#pragma once

#include "RestoreContent.h"
#include "RowList.h"

namespace abissora {

class ScrollPane;
class StateRow;

/// The kept states below one another, one of them chosen, in a scroll area of their own. What a state's row says is
/// asked for when the row comes in sight.
class StateList final : public RowList
{
    Q_OBJECT

public:
    /// `content` must outlive it.
    explicit StateList(RestoreContent& content);

    /// The widget that scrolls it.
    [[nodiscard]] QWidget& area() const;

    [[nodiscard]] qsizetype chosen() const { return m_chosen; }
    /// -1 for none.
    void choose(qsizetype index);
    /// The chosen one's button; null when there are no states.
    [[nodiscard]] QWidget* chosenButton() const;

Q_SIGNALS:
    void chosenChanged(qsizetype index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    StateList(RestoreContent& content, ScrollPane& area);

    QWidget* makeRow() override;
    void fillRow(QWidget& row, qsizetype index) override;
    [[nodiscard]] QString shapeOf(const QWidget& ruler, qsizetype index) const override;
    [[nodiscard]] qsizetype indexOf(const StateRow& row) const;
    void showState(qsizetype index);

    RestoreContent& m_content;
    ScrollPane& m_area;
    QHash<const QWidget*, qsizetype> m_shown; ///< the state that each row shows
    mutable const QWidget* m_measuring = nullptr;
    qsizetype m_chosen = 0;
};

} // namespace abissora
