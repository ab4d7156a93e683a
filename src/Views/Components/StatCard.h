// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QFrame>
#include <QIcon>

namespace abissora {

/// A figure with its symbol and title; one object to screen readers, read as "title: value".
class StatCard : public QFrame
{
    Q_OBJECT

public:
    explicit StatCard(const QString& title, const QString& symbol, NamedColor color, QWidget* parent = nullptr);

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] QString value() const { return m_value; }
    void setValue(const QString& value);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void name();

    QString m_title;
    QString m_value;
    QIcon m_icon;
};

} // namespace abissora
