// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes.h"
#include "HelpPage.h"
#include "HelpParts.h"
#include "HelpView.h"
#include "Literals.h"
#include "SearchField.h"

#include <QLabel>
#include <QListView>
#include <QTest>

namespace abissora::test {

inline constexpr QSize smallest(880, 640);

/// The guide's view at its smallest size.
struct ShownHelp
{
    explicit ShownHelp(const QList<HelpSection>& sections = threeSections())
        : view(sections, opener)
        , search(*view.findChild<SearchField*>(u"helpSearch"_s))
        , list(*view.findChild<QListView*>(u"helpSections"_s))
        , page(*view.findChild<HelpPage*>())
    {
        view.resize(smallest);
    }

    [[nodiscard]] QStringList rows() const
    {
        QStringList titles;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            titles.append(list.model()->index(row, 0).data().toString());
        return titles;
    }

    [[nodiscard]] int selectedRow() const
    {
        const QModelIndexList rows = list.selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }

    [[nodiscard]] QString pageTitle() const
    {
        return page.isVisible() ? page.toPlainText().section(u'\n', 0, 0) : QString();
    }

    [[nodiscard]] QLabel* label(const QString& text) const
    {
        for (QLabel* label : view.findChildren<QLabel*>()) {
            if (label->text() == text && label->isVisible())
                return label;
        }
        return nullptr;
    }

    void type(const QString& text)
    {
        search.setFocus();
        search.selectAll();
        QTest::keyClicks(&search, text);
    }

    void click(int row)
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(row, 0)).center());
    }

    RecordingOpener opener;
    HelpView view;
    SearchField& search;
    QListView& list;
    HelpPage& page;
};

} // namespace abissora::test
