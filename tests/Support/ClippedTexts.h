// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QStringList>
#include <QToolButton>

namespace abissora::test {

/// The texts of visible labels and buttons under `root` that have less room than they ask for.
inline QStringList clippedTexts(const QWidget& root)
{
    QStringList clipped;
    const auto check = [&](const QWidget& widget, const QString& text) {
        if (text.isEmpty() || !widget.isVisibleTo(&root))
            return;
        const QSize wanted =
            widget.hasHeightForWidth() ? QSize(0, widget.heightForWidth(widget.width())) : widget.sizeHint();
        if (widget.width() < wanted.width() || widget.height() < wanted.height())
            clipped.append(text);
    };
    for (const QLabel* label : root.findChildren<QLabel*>())
        check(*label, label->text());
    for (const QAbstractButton* button : root.findChildren<QAbstractButton*>()) {
        const auto* tool = qobject_cast<const QToolButton*>(button);
        if (tool == nullptr || tool->toolButtonStyle() != Qt::ToolButtonIconOnly)
            check(*button, button->text());
    }
    return clipped;
}

} // namespace abissora::test
