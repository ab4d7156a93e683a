// SPDX-License-Identifier: MIT
// Ends the program that it is linked into when its first window stands there: painted, and nothing left to do.
#include <QCoreApplication>
#include <QEvent>
#include <cstdlib>

namespace {

class FirstFrame final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            QCoreApplication::instance()->removeEventFilter(this);
            // Behind all redraws that are waiting.
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), lastOfAll);
        }
        return false;
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::User)
            std::_Exit(EXIT_SUCCESS);
        return QObject::event(event);
    }

private:
    static constexpr int lastOfAll = -1000;
};

void watch()
{
    QCoreApplication* const application = QCoreApplication::instance();
    application->installEventFilter(new FirstFrame(application));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
