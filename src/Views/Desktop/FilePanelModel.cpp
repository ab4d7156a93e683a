// SPDX-License-Identifier: MIT
#include "FilePanelModel.h"

#include "Literals.h"

#include <QFileInfo>
#include <QFileSystemModel>

namespace abissora {

namespace {

QString kindOf(const QFileInfo& file)
{
    if (file.isDir())
        return u"Cartella"_s;
    const QString suffix = file.suffix();
    if (suffix.compare("pdf"_L1, Qt::CaseInsensitive) == 0)
        return u"Documento PDF"_s;
    return suffix.isEmpty() ? u"File"_s : u"File %1"_s.arg(suffix.toUpper());
}

} // namespace

FilePanelModel::FilePanelModel(const QLocale& locale, QObject* parent)
    : QIdentityProxyModel(parent)
    , m_locale(locale)
    , m_dates(locale, Calendar())
{}

QVariant FilePanelModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole || index.column() == Name)
        return QIdentityProxyModel::data(index, role);
    const QFileInfo file(QIdentityProxyModel::data(index, QFileSystemModel::FilePathRole).toString());
    switch (index.column()) {
    case Size:
        return file.isDir() ? QString() : m_locale.formattedDataSize(file.size(), 1, QLocale::DataSizeSIFormat);
    case Kind:
        return kindOf(file);
    case Changed:
        return m_dates.dayAndTime(Instant(std::chrono::milliseconds(file.lastModified().toMSecsSinceEpoch())));
    default:
        return QIdentityProxyModel::data(index, role);
    }
}

} // namespace abissora
