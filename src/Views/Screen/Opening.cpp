// SPDX-License-Identifier: MIT
#include "Opening.h"

#include "Alert.h"
#include "ForeignText.h"
#include "Literals.h"

#include <QDir>
#include <QPointer>

namespace abissora {

namespace {

constexpr qsizetype longestAddress = 300;
constexpr char awaitedAddress[] = "awaitedAddress";

struct Notice
{
    QString title;
    QString message;
};

QCoro::Task<bool> open(QUrl url, Opener& opener, QPointer<QWidget> place, Notice notice)
{
    if (place->property(awaitedAddress).toUrl() == url)
        co_return false;
    place->setProperty(awaitedAddress, url);
    const bool opened = co_await opener.open(url);
    if (!place)
        co_return opened;
    place->setProperty(awaitedAddress, {});
    if (opened)
        co_return true;
    Alert::notice(place, notice.title, notice.message);
    co_return false;
}

} // namespace

QCoro::Task<bool> openPage(const QUrl& address, Opener& opener, QWidget& place)
{
    const QString shown = shownLine(address.toString(QUrl::FullyEncoded), longestAddress);
    return open(address, opener, &place,
                {u"Pagina non aperta"_s,
                 u"Il sistema non ha aperto la pagina: forse manca un browser. L'indirizzo è:\n%1"_s.arg(shown)});
}

QCoro::Task<bool> openDocument(const QString& path, Opener& opener, QWidget& place)
{
    return open(
        QUrl::fromLocalFile(path), opener, &place,
        {u"Documento non aperto"_s, u"Il sistema non ha aperto il documento: forse manca un'applicazione per i file "
                                    "PDF. Il file si trova qui:\n%1"_s.arg(QDir::toNativeSeparators(path))});
}

} // namespace abissora
