// SPDX-License-Identifier: MIT
#pragma once

#include "DateFormat.h"

#include <QIdentityProxyModel>

namespace abissora {

/// What the toolkit's file panel lists, with kinds, sizes and times told as everywhere in the program; the toolkit
/// tells them in English where the system has no language.
class FilePanelModel final : public QIdentityProxyModel
{
    Q_OBJECT

public:
    enum Column { Name, Size, Kind, Changed };

    explicit FilePanelModel(const QLocale& locale, QObject* parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QLocale m_locale;
    DateFormat m_dates;
};

} // namespace abissora
