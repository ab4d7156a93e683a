// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace abissora {

class ReturnKey;

/// Fusion with this program's own drawing. It keeps no colours: each control is drawn from the tokens of the scheme
/// that its palette belongs to. Return presses the button that has the focus.
class AbissoraStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    AbissoraStyle();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    [[nodiscard]] QPalette standardPalette() const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                       const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                         const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override;

private:
    ReturnKey* m_returnKey;
};

} // namespace abissora
