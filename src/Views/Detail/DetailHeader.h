// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "DetailContent.h"

namespace abissora {

class DueBadge;
class IconTile;
class StateMark;
class WrapLabel;

/// Who the item is and how it stands.
class DetailHeader : public Card
{
    Q_OBJECT

public:
    explicit DetailHeader(QWidget* parent = nullptr);

    void setContent(const DetailContent& content);

private:
    IconTile* m_tile;
    WrapLabel* m_name;
    WrapLabel* m_typeName;
    StateMark* m_state;
    DueBadge* m_badge;
};

} // namespace abissora
