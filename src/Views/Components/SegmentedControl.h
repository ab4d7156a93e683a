// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QButtonGroup;

namespace abissora {

/// One choice out of a few that stand side by side. One stop of Tab, at what is chosen, else at the first; the arrow
/// keys move the choice, and the focus goes with it.
class SegmentedControl : public QWidget
{
    Q_OBJECT

public:
    enum class Purpose {
        Tabs,   ///< switches between pages
        Choice, ///< sets a value
    };

    explicit SegmentedControl(Purpose purpose = Purpose::Tabs, QWidget* parent = nullptr);

    void addSegment(const QString& symbol, const QString& text);
    void addSegment(const QString& text);
    [[nodiscard]] int count() const;

    /// -1 when nothing is chosen.
    [[nodiscard]] int currentIndex() const;
    /// Emits nothing; -1 chooses nothing.
    void setCurrentIndex(int index);

Q_SIGNALS:
    /// The person chose another segment.
    void activated(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void choose(int index);
    /// The focus of one segment goes over to the stop.
    void placeTabStop();

    Purpose m_purpose;
    QButtonGroup* m_group;
    int m_current = -1;
};

} // namespace abissora
