// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QLabel>

namespace abissora {

/// Plain text behind an icon.
class IconLabel : public QLabel
{
    Q_OBJECT

public:
    explicit IconLabel(const QIcon& icon = {}, const QString& text = {}, QWidget* parent = nullptr);

    void setIcon(const QIcon& icon);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void makeRoom();

    QIcon m_icon;
};

} // namespace abissora
