// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace abissora {

/// A window of its own without a title bar, as large as its content: rounded, with a mark to close it in a corner,
/// moved by dragging its ground, closed by Escape too. It deletes itself when it closes.
class TitlelessWindow : public QDialog
{
    Q_OBJECT

public:
    /// Takes the content over. `title` is what the system calls the window.
    TitlelessWindow(const QString& title, QWidget* content);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace abissora
