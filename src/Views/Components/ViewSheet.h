// SPDX-License-Identifier: MIT
#pragma once

#include "SheetWindow.h"

#include <QMargins>

namespace abissora {

/// One view over another window. It closes when whoever opens it connects the view to one of the dialog's slots, by
/// Escape, or by a button of its own below the view.
class ViewSheet final : public SheetWindow
{
    Q_OBJECT

public:
    struct Content
    {
        QWidget* view = nullptr;
        QString title;
        QMargins margins = {};    ///< the rounded corners lie outside a square view
        QSize preferredSize = {}; ///< without one the sheet is as large as its view
        QWidget* firstFocus = nullptr;
        QString closeButton = {}; ///< no button without a text
    };

    ViewSheet(const Content& content, QWidget* parent);

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override { return m_firstFocus; }

private:
    QSize m_preferredSize;
    QPointer<QWidget> m_firstFocus;
};

/// What stands above a view that fills its sheet, in its middle.
[[nodiscard]] QWidget* sheetTitle(const QString& title);

} // namespace abissora
