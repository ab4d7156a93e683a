// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "DetailContent.h"

namespace abissora {

class DetailRow;

class TechnicalDetails : public GroupBox
{
    Q_OBJECT

public:
    explicit TechnicalDetails(QWidget* parent = nullptr);

    void setLines(const QList<DetailContent::Line>& lines);

private:
    QList<DetailRow*> m_rows;
};

} // namespace abissora
