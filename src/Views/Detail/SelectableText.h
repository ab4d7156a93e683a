// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

namespace abissora {

/// Plain text of any length that can be read, selected and copied; as high as it needs to be.
class SelectableText : public QTextEdit
{
    Q_OBJECT

public:
    explicit SelectableText(QWidget* parent = nullptr);

    void setText(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void fit();
};

} // namespace abissora
