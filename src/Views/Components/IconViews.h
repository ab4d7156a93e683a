// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QIcon>
#include <QLabel>

namespace abissora {

/// Shows an icon at a fixed size, asking it anew at every paint, so that it follows the scheme and the screen.
class IconView : public QWidget
{
    Q_OBJECT

public:
    explicit IconView(const QIcon& icon = {}, int side = 16, QWidget* parent = nullptr);

    void setIcon(const QIcon& icon);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
    int m_side;
};

/// An icon on a round tint of its own colour.
class IconTile : public QWidget
{
    Q_OBJECT

public:
    explicit IconTile(int side = 38, QWidget* parent = nullptr);

    void setIcon(const QIcon& icon, NamedColor color);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
    NamedColor m_color = NamedColor::primary;
    int m_side;
};

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
