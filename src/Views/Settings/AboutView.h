// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QWidget>

namespace abissora {

struct ProgramFacts;

/// The application's icon on a soft shadow, drawn anew at the device's own pixels.
class ShadowedIcon : public QWidget
{
    Q_OBJECT

public:
    explicit ShadowedIcon(int side, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
    int m_side;
};

/// What the program is and who made it; as large as it needs to be. Read when it is made.
class AboutView : public QWidget
{
    Q_OBJECT

public:
    explicit AboutView(const ProgramFacts& program, QWidget* parent = nullptr);

protected:
    /// Takes the focus, so that no value looks chosen.
    void showEvent(QShowEvent* event) override;
};

} // namespace abissora
