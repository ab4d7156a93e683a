// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace abissora {

struct ProgramFacts;

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
