// SPDX-License-Identifier: MIT
#include "PageOpening.h"

#include "Alert.h"
#include "ForeignText.h"
#include "Literals.h"
#include "Opener.h"

#include <QPointer>

namespace abissora {

namespace {

constexpr qsizetype longestAddress = 300;

} // namespace

bool openPage(const QUrl& address, Opener& opener, QWidget& place)
{
    const QPointer<QWidget> shown(&place);
    const bool opened = opener.open(address);
    if (opened || !shown)
        return opened;
    auto* notice = new Alert(&place);
    notice->setAttribute(Qt::WA_DeleteOnClose);
    notice->setTitle(u"Pagina non aperta"_s);
    notice->setMessage(u"Il sistema non ha aperto la pagina: forse manca un browser. L'indirizzo è:\n%1"_s.arg(
        shownLine(address.toString(QUrl::FullyEncoded), longestAddress)));
    notice->makeNotice();
    notice->open();
    return false;
}

} // namespace abissora
