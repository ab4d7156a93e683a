// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "Scenes.h"

#include "Buttons.h"
#include "Metrics.h"
#include "SymbolIcon.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace abissora::gallery {

namespace {

enum class Touch { None, Hover, Pressed, Focus, Disabled };
constexpr std::array touches{Touch::None, Touch::Hover, Touch::Pressed, Touch::Focus, Touch::Disabled};

/// Shows its ring without having the focus, which only one control of a scene can have.
class TouchedButton final : public LookButton
{
public:
    TouchedButton(Touch touch, ButtonLook look, const QString& text)
        : LookButton(look, text)
        , m_touch(touch)
    {
        setDown(touch == Touch::Pressed);
        setEnabled(touch != Touch::Disabled);
        setAttribute(Qt::WA_UnderMouse, touch == Touch::Hover);
    }

protected:
    void initStyleOption(QStyleOptionButton* option) const override
    {
        LookButton::initStyleOption(option);
        if (m_touch == Touch::Focus)
            option->state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    }

private:
    Touch m_touch;
};

std::unique_ptr<QWidget> buttons()
{
    auto scene = std::make_unique<QWidget>();
    auto* grid = new QGridLayout(scene.get());
    grid->setSpacing(metrics::spaceM);
    const QList<std::pair<ButtonLook, QString>> looks{
        {ButtonLook::Plain, u"Aggiorna"_s},      {ButtonLook::Primary, u"Aggiungi"_s},
        {ButtonLook::Destructive, u"Elimina"_s}, {ButtonLook::Caution, u"Disattiva"_s},
        {ButtonLook::Borderless, u"Altro"_s},    {ButtonLook::Link, u"Scontrino"_s}};
    for (int row = 0; row < looks.size(); ++row) {
        for (std::size_t column = 0; column < touches.size(); ++column) {
            auto* button = new TouchedButton(touches.at(column), looks.at(row).first, looks.at(row).second);
            button->setSymbol(u"arrow.clockwise"_s);
            grid->addWidget(button, row, static_cast<int>(column));
        }
    }
    for (std::size_t column = 0; column < touches.size(); ++column) {
        auto* tool = new IconButton(symbolIcon(u"line.3.horizontal.decrease"_s), u"Filtro"_s);
        setButtonLook(*tool, column % 2 == 0 ? ButtonLook::Plain : ButtonLook::Borderless);
        tool->setEnabled(touches.at(column) != Touch::Disabled);
        tool->setDown(touches.at(column) == Touch::Pressed);
        grid->addWidget(tool, static_cast<int>(looks.size()), static_cast<int>(column));
    }
    return scene;
}

std::unique_ptr<QWidget> fields()
{
    auto scene = std::make_unique<QWidget>();
    scene->setMinimumWidth(420);
    auto* layout = new QVBoxLayout(scene.get());
    layout->setSpacing(metrics::spaceM);
    auto* empty = new QLineEdit;
    empty->setPlaceholderText(u"Inserisci il nome"_s);
    auto* focused = new QLineEdit(u"Computer Suunto"_s);
    focused->setFocus();
    auto* disabled = new QLineEdit(u"Non modificabile"_s);
    disabled->setEnabled(false);
    auto* combo = new QComboBox;
    combo->addItem(symbolIcon(u"dive.regulator"_s, NamedColor::blue), u"Erogatore"_s);
    auto* plainCombo = new QComboBox;
    plainCombo->addItem(u"Manutenzione Annuale"_s);
    plainCombo->setEnabled(false);
    auto* spin = new QSpinBox;
    spin->setSuffix(u" giorni"_s);
    auto* text = new QPlainTextEdit(u"Una nota\nsu due righe"_s);
    text->setMaximumHeight(70);
    auto* bar = new QProgressBar;
    bar->setValue(40);
    for (QWidget* field : std::initializer_list<QWidget*>{empty, focused, disabled, combo, plainCombo, spin, text, bar})
        layout->addWidget(field);
    return scene;
}

std::unique_ptr<QWidget> table()
{
    auto table = std::make_unique<QTableWidget>(12, 3);
    table->setHorizontalHeaderLabels({u"Nome"_s, u"Marca"_s, u"Prossimo Tagliando"_s});
    for (int row = 0; row < table->rowCount(); ++row) {
        auto* name = new QTableWidgetItem(u"Erogatore %1"_s.arg(row + 1));
        name->setIcon(symbolIcon(u"dive.regulator"_s, NamedColor::blue));
        table->setItem(row, 0, name);
        table->setItem(row, 1, new QTableWidgetItem(u"Apeks"_s));
        table->setItem(row, 2, new QTableWidgetItem(u"21 novembre 2027"_s));
    }
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->selectRow(2);
    table->setSortingEnabled(true);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->resize(420, 260);
    return table;
}

std::unique_ptr<QWidget> sidebarList()
{
    auto list = std::make_unique<QListWidget>();
    list->viewport()->setBackgroundRole(QPalette::AlternateBase);
    setSelectionLook(*list, SelectionLook::Pill);
    for (const auto* name : {"Tutti gli articoli", "Bombola", "Bussola", "Erogatore"})
        list->addItem(new QListWidgetItem(symbolIcon(u"folder"_s), QString::fromUtf8(name)));
    list->setCurrentRow(1);
    list->resize(220, 160);
    return list;
}

std::unique_ptr<QWidget> menu()
{
    auto menu = std::make_unique<QMenu>();
    menu->addAction(symbolIcon(u"plus"_s), u"Nuova attrezzatura"_s)->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    auto* current = menu->addAction(symbolIcon(u"pencil"_s), u"Modifica"_s);
    menu->addSeparator();
    auto* checked = menu->addAction(u"Mostra i dettagli"_s);
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addMenu(u"Altro"_s)->addAction(u"Niente"_s);
    menu->addAction(symbolIcon(u"xmark"_s, NamedColor::red), u"Elimina"_s)->setEnabled(false);
    menu->setActiveAction(current);
    menu->resize(menu->sizeHint());
    return menu;
}

} // namespace

QList<Scene> controlScenes()
{
    return {{u"control-buttons"_s, buttons},
            {u"control-fields"_s, fields},
            {u"control-table"_s, table},
            {u"control-sidebar"_s, sidebarList},
            {u"control-menu"_s, menu}};
}

} // namespace abissora::gallery
