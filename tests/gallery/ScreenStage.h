// SPDX-License-Identifier: MIT
#pragma once

#include "MainWindow.h"
#include "Scenes.h"
#include "ShellFixture.h"
#include "SidebarView.h"

#include <QSize>

namespace abissora::gallery {

using namespace std::chrono_literals;

constexpr QSize windowSize(1280, 800);
const Instant today = std::chrono::sys_days{std::chrono::year(2026) / 11 / 21} + 9h;

/// The seven pieces of gear that the screens show.
[[nodiscard]] QList<Equipment> items();

/// The state that a window shows is made before the window and outlives it.
struct Holder
{
    explicit Holder(const QList<Equipment>& stored)
        : fixture(stored)
    {
        fixture.clock.set(today);
    }

    test::ShellFixture fixture;
};

class Window final : private Holder, public MainWindow
{
public:
    using Setup = std::function<void(test::RegisterFixture&, MainWindow&)>;

    Window(const QList<Equipment>& stored, const Setup& setup, QSize size)
        : Holder(stored)
        , MainWindow(fixture, fixture.equipment, fixture.directories.windowStateFile())
    {
        resize(size);
        setup(fixture, *this);
    }
};

inline Scene window(const QString& name, const Window::Setup& setup, const QList<Equipment>& stored = items(),
                    QSize size = windowSize)
{
    return {name, [=]() -> std::unique_ptr<QWidget> { return std::make_unique<Window>(stored, setup, size); }};
}

inline void selectInSidebar(MainWindow& window, const QString& tag)
{
    window.findChild<SidebarView*>()->setSelectedSidebarItem(tag);
}

/// Keeps a sheet's state alive as its child.
class KeptState final : public QObject
{
public:
    explicit KeptState(const QList<Equipment>& stored)
        : holder(stored)
    {}

    Holder holder;
};

/// A form over the items; `make` is given the fixture.
template <typename Make>
Scene form(const QString& name, const Make& make)
{
    return {name, [make] {
                auto state = std::make_unique<KeptState>(items());
                std::unique_ptr<QWidget> sheet = make(state->holder.fixture);
                state.release()->setParent(sheet.get());
                return sheet;
            }};
}

} // namespace abissora::gallery
