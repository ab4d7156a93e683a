// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QVBoxLayout;

namespace abissora {

class NameLabel;

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

/// A card under a title, with a symbol before it when one is named.
class GroupBox : public Card
{
    Q_OBJECT

public:
    explicit GroupBox(const QString& title, const QString& symbol = {}, QWidget* parent = nullptr);

    [[nodiscard]] QString title() const;
    void setTitle(const QString& title);
    /// A letter of the title, which then leads to a widget of the content.
    void setAccessKey(QChar key, QWidget* widget);

private:
    NameLabel* m_title;
};

/// A horizontal hairline.
class Separator : public QWidget
{
    Q_OBJECT

public:
    enum class Weight {
        Border,  ///< between parts of a window
        Divider, ///< between rows
    };

    explicit Separator(Weight weight = Weight::Border, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Weight m_weight;
};

} // namespace abissora
