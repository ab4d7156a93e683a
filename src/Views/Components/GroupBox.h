// SPDX-License-Identifier: MIT
#pragma once

#include "Card.h"

class QLabel;

namespace abissora {

class IconView;

/// A card under a title, with a symbol before it when one is named.
class GroupBox : public Card
{
    Q_OBJECT

public:
    explicit GroupBox(const QString& title, const QString& symbol = {}, QWidget* parent = nullptr);

    [[nodiscard]] QString title() const;
    void setTitle(const QString& title);

private:
    QLabel* m_title;
};

} // namespace abissora
