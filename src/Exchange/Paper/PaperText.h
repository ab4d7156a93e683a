// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QHash>
#include <QTextLayout>
#include <array>

class QPainter;

namespace abissora {

/// Lengths on paper are tenths of a point: fonts have whole sizes in them, and a device's own pixels matter nowhere.
inline constexpr double unitsPerPoint = 10;

enum class PaperStyle {
    Kind,
    Title,
    Subtitle,
    Label,
    Value,
    StrongValue,
    Section,
    ColumnTitle,
    Cell,
    StrongCell,
    Foot
};

/// Secondary texts are fainter.
[[nodiscard]] bool isSecondary(PaperStyle style);
[[nodiscard]] QFont paperFont(PaperStyle style);
/// Of a line of Latin letters; others may be higher.
[[nodiscard]] double lineHeight(PaperStyle style);

/// A text in a column.
struct TextBox
{
    QString text;
    PaperStyle style = PaperStyle::Cell;
    double left = 0;
    double width = 0;
    bool isRightAligned = false;
};

/// A text in lines, none of them wider than its column: it breaks at blanks, and within a word that has no room.
class SetText
{
public:
    explicit SetText(const TextBox& box);

    [[nodiscard]] qsizetype lineCount() const { return m_heights.size(); }
    [[nodiscard]] double heightOf(qsizetype line) const { return m_heights.at(line); }
    [[nodiscard]] double height() const;
    /// Of the letters of a line.
    [[nodiscard]] double widthOf(qsizetype line) const;
    /// The lines from `first` to before `end`, the first of them at `top`.
    void draw(QPainter& painter, double top, qsizetype first, qsizetype end) const;

private:
    QTextLayout m_layout;
    double m_left;
    QList<double> m_heights;
};

/// Measures many short texts quickly. Letters that every font has are added up one by one; any other text is set.
class TextRuler
{
public:
    TextRuler();

    [[nodiscard]] double width(const QString& text, PaperStyle style) const;
    [[nodiscard]] double height(const TextBox& box) const;

private:
    struct Advances
    {
        std::array<double, 256> widths{};
    };
    /// Nothing for other letters than Latin ones.
    [[nodiscard]] std::optional<double> sum(const QString& text, PaperStyle style) const;

    QHash<PaperStyle, Advances> m_advances;
};

} // namespace abissora
