// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <QList>

class QTextCursor;

namespace abissora {

class HelpPage;

/// What screen readers have of a page: a document with its text, and its links as children that can be pressed.
class HelpPageAccessible final : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit HelpPageAccessible(QWidget* page);
    ~HelpPageAccessible() override;
    Q_DISABLE_COPY_MOVE(HelpPageAccessible)

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;

    void selection(int index, int* start, int* end) const override;
    [[nodiscard]] int selectionCount() const override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    [[nodiscard]] int cursorPosition() const override;
    void setCursorPosition(int position) override { setSelection(0, position, position); }
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override { return QAccessibleWidget::text(kind); }
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    [[nodiscard]] QString attributes(int offset, int* start, int* end) const override;

private:
    [[nodiscard]] HelpPage& page() const;
    [[nodiscard]] QTextCursor cursorAt(int position) const;
    void findLinks() const;
    void forgetLinks() const;

    mutable QList<QAccessible::Id> m_links; ///< this object's own
    mutable int m_revision = -1;            ///< of the document that the links were found in
};

} // namespace abissora
