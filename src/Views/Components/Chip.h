// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QIcon;
class QLabel;

namespace abissora {

class IconButton;
class IconView;

/// What is in force, as a pill with a mark that ends it.
class Chip : public QFrame
{
    Q_OBJECT

public:
    explicit Chip(QWidget* parent = nullptr);

    void setIcon(const QIcon& icon);
    void setText(const QString& text);
    [[nodiscard]] QString text() const;

Q_SIGNALS:
    void clearClicked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    IconView* m_icon;
    QLabel* m_text;
    IconButton* m_clear;
};

} // namespace abissora
