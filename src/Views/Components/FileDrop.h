// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <functional>

class QDropEvent;
class QWidget;

namespace abissora {

/// Lets a person drop one file of this computer on a widget; the pointer shows what is refused. Lives with the widget.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// Asked with a place in the widget's coordinates.
    using Accepts = std::function<bool(const QString& path, QPoint place)>;

    FileDrop(QWidget& target, Accepts accepts);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void dropped(const QString& path, QPoint place);

private:
    [[nodiscard]] bool takes(const QDropEvent& event) const;

    Accepts m_accepts;
};

} // namespace abissora
