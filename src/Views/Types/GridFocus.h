// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QList>
#include <QPointer>

class QKeyEvent;

namespace abissora {

/// Moves the focus through buttons that stand in rows: left and right along them, up and down within the column (or as
/// near to it as a shorter row allows), Home and End to the first and the last. Return presses, as the space bar does.
/// However many buttons there are, Tab stops at the one that had the focus last, or at its row.
class GridFocus : public QObject
{
    Q_OBJECT

public:
    enum class TabStop { Cell, Row };
    using Row = QList<QAbstractButton*>;

    explicit GridFocus(TabStop stop, QObject* parent = nullptr);

    /// The buttons belong to somebody else and may go before this does. No row is empty.
    void setRows(const QList<Row>& rows);
    /// Where Tab enters; the first button when this is none of them.
    void setCurrent(QAbstractButton* button);
    [[nodiscard]] QAbstractButton* current() const { return m_current; }

Q_SIGNALS:
    /// The keyboard brought the focus to a button, which should be in sight. A click does not: what is clicked shall
    /// not move.
    void entered(QAbstractButton* button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place
    {
        qsizetype row = -1;
        qsizetype column = -1;
    };

    [[nodiscard]] Place placeOf(const QAbstractButton* button) const;
    [[nodiscard]] Place target(const QKeyEvent& key, Place from) const;
    [[nodiscard]] Place beside(Place from, int step) const;
    [[nodiscard]] Place across(Place from, int step) const;
    void takeTabStop(QAbstractButton* button, bool take) const;
    bool press(QAbstractButton* button, const QKeyEvent& key);

    TabStop m_stop;
    QList<QList<QPointer<QAbstractButton>>> m_rows;
    QPointer<QAbstractButton> m_current;
    qsizetype m_column = 0; ///< that up and down keep to
    bool m_movingAcross = false;
};

} // namespace abissora
