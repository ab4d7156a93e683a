// SPDX-License-Identifier: MIT
#include "DocumentOpening.h"

#include "Alert.h"
#include "Literals.h"

#include <QDir>
#include <QPointer>

namespace abissora {

bool openDocument(const QString& name, const MaintenanceDocumentStore& documents, Opener& opener, QWidget& place)
{
    const auto path = documents.url(name);
    if (!path)
        return false;
    const QPointer<QWidget> shown(&place);
    if (opener.open(QUrl::fromLocalFile(*path)) || !shown)
        return true;
    auto* notice = new Alert(&place);
    notice->setAttribute(Qt::WA_DeleteOnClose);
    notice->setTitle(u"Documento non aperto"_s);
    notice->setMessage(u"Il sistema non ha aperto il documento: forse manca un'applicazione per i file "
                       "PDF. Il file si trova qui:\n%1"_s.arg(QDir::toNativeSeparators(*path)));
    notice->makeNotice();
    notice->open();
    return true;
}

} // namespace abissora
