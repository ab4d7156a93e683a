// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "DetailContent.h"

#include <QTextEdit>

namespace abissora {

class ActionRows;
class IconTile;
class LookButton;
class StateMark;
class WrapLabel;

/// Who the item is and how it stands.
class DetailHeader : public Card
{
    Q_OBJECT

public:
    explicit DetailHeader(QWidget* parent = nullptr);

    void setContent(const DetailContent& content);

private:
    IconTile* m_tile;
    WrapLabel* m_name;
    WrapLabel* m_typeName;
    StateMark* m_state;
    QWidget* m_badge;
};

/// Labels at the left, their values at the right.
class TechnicalDetails : public GroupBox
{
    Q_OBJECT

public:
    explicit TechnicalDetails(QWidget* parent = nullptr);

    void setLines(const QList<DetailContent::Line>& lines);

private:
    QList<WrapLabel*> m_values;
};

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

/// What can be done with the item.
class DetailActions : public QWidget
{
    Q_OBJECT

public:
    explicit DetailActions(QWidget* parent = nullptr);

    void setActive(bool active);
    void focusAddMaintenance();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

Q_SIGNALS:
    void editClicked();
    void addMaintenanceClicked();
    void toggleActiveClicked();
    void deleteClicked();

private:
    /// Two rows are worth more than pictures on the buttons.
    void fitPictures();
    void showPictures(bool shown);

    ActionRows* m_rows;
    LookButton* m_edit;
    LookButton* m_addMaintenance;
    LookButton* m_toggleActive;
    LookButton* m_remove;
    int m_widthWithPictures = 0;
    bool m_hasPictures = false;
};

} // namespace abissora
