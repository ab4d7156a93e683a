// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes.h"
#include "Gui.h"
#include "HelpPage.h"
#include "HelpParts.h"
#include "HelpView.h"
#include "SearchField.h"

#include <QListView>

namespace abissora::test {

inline constexpr QSize smallest(880, 640);

/// The guide's view at its smallest size.
struct ShownHelp
{
    explicit ShownHelp(const QList<HelpSection>& sections = threeSections())
        : view(sections, opener)
        , search(existing<SearchField>(view, u"helpSearch"))
        , list(existing<QListView>(view, u"helpSections"))
        , page(existing<HelpPage>(view, u"helpPage"))
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
