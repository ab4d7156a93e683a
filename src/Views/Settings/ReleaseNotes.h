// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

namespace abissora {

/// Plain text to read, select and copy. As high as the text needs at the width it has, within bounds beyond which it
/// scrolls.
class ReleaseNotes : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ReleaseNotes(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace abissora
