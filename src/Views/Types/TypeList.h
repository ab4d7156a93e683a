// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "EquipmentTypeModel.h"

class QScrollArea;

namespace abissora {

class GridFocus;
class TypeRow;

/// The types below one another. The focus stays with its type when the types change, or near it when it is gone.
///
/// A row is made when it comes into sight for the first time, and then stays: there may be hundreds.
class TypeList : public Card
{
    Q_OBJECT

public:
    explicit TypeList(QWidget* parent = nullptr);

    void setTypes(const QList<EquipmentTypeModel>& types);

Q_SIGNALS:
    void editRequested(const abissora::EquipmentTypeModel& type);
    void deleteRequested(const abissora::EquipmentTypeModel& type);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Place
    {
        qsizetype row = -1;
        qsizetype column = -1;
    };

    [[nodiscard]] Place focused() const;
    void takeFocus(Place place);
    void measure();
    void makeRowsInSight();
    void makeRow(qsizetype index);
    void placeRow(qsizetype index);
    void handOverToKeyboard();

    QScrollArea* m_scroll;
    QWidget* m_canvas;
    TypeRow* m_ruler; ///< tells how high rows are; never shown
    GridFocus* m_focus;
    QList<EquipmentTypeModel> m_types;
    QList<int> m_tops;      ///< of every type's row and of the end
    QList<TypeRow*> m_rows; ///< by index, null where none was made; those behind the types are hidden
};

} // namespace abissora
