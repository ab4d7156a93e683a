// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QVBoxLayout;

namespace abissora {

/// A rounded surface with a hairline border, its content below one another.
class Card : public QFrame
{
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr);

    [[nodiscard]] QVBoxLayout* content() const { return m_content; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* m_content;
};

} // namespace abissora
