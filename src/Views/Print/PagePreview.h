// SPDX-License-Identifier: MIT
#pragma once

#include "PageLayout.h"

#include <QWidget>

namespace abissora {

class IconButton;
class InkLabel;

/// One page of a paper as it will be printed, as large as there is room.
class PageCanvas final : public QWidget
{
    Q_OBJECT

public:
    explicit PageCanvas(QWidget* parent = nullptr);

    /// An empty ground without a layout, which must outlive it.
    void setPage(const PageLayout* layout, qsizetype page);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Of the page, in whole pixels.
    [[nodiscard]] QRect pageRect() const;

Q_SIGNALS:
    /// So many pages on; beyond the ends means to the end.
    void turned(qsizetype pages);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    const PageLayout* m_layout = nullptr;
    qsizetype m_page = 0;
    int m_wheel = 0; ///< what is left of turns of the wheel, in eighths of a degree
};

/// The pages of a paper, one at a time, to be turned by keys, wheel and buttons.
class PagePreview final : public QWidget
{
    Q_OBJECT

public:
    explicit PagePreview(QWidget* parent = nullptr);

    /// Shows the first page; of nothing, an empty ground.
    void setLayoutOfPages(const std::optional<PageLayout>& layout);
    [[nodiscard]] qsizetype page() const { return m_page; }

private:
    void turn(qsizetype pages);
    void show(qsizetype page);

    std::optional<PageLayout> m_layout;
    qsizetype m_page = 0;
    PageCanvas* m_canvas;
    IconButton* m_back;
    InkLabel* m_number;
    IconButton* m_on;
};

} // namespace abissora
