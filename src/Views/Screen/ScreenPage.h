// SPDX-License-Identifier: MIT
#pragma once

#include "ScrollPane.h"

class QVBoxLayout;

namespace abissora {

/// A screen's content in one column, which scrolls when it is higher than the window. While there is something to
/// scroll the page takes the focus, so that the keyboard can scroll what has no controls to walk through.
class ScreenPage : public ScrollPane
{
    Q_OBJECT

public:
    /// Screen readers read the name.
    explicit ScreenPage(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QVBoxLayout* column() const { return m_column; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* m_column;
};

} // namespace abissora
