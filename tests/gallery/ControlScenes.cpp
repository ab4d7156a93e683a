// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Buttons.h"
#include "Metrics.h"
#include "SymbolIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace abissora::gallery {

namespace {

enum class Touch { None, Hover, Pressed, Focus, Disabled };
constexpr std::array touches{Touch::None, Touch::Hover, Touch::Pressed, Touch::Focus, Touch::Disabled};

/// Shows its ring without having the focus, which only one control of a scene can have.
template <class Button>
class Touched final : public Button
{
public:
    template <class... Arguments>
    explicit Touched(Touch touch, Arguments&&... arguments)
        : Button(std::forward<Arguments>(arguments)...)
        , m_touch(touch)
    {
        this->setDown(touch == Touch::Pressed);
        this->setEnabled(touch != Touch::Disabled);
        this->setAttribute(Qt::WA_UnderMouse, touch == Touch::Hover);
    }

protected:
    void initStyleOption(QStyleOptionButton* option) const override
    {
        Button::initStyleOption(option);
        if (m_touch == Touch::Focus)
            option->state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    }

private:
    Touch m_touch;
};

class TouchedButton final : public LookButton
{
public:
    TouchedButton(Touch touch, ButtonLook look, const QString& text)
        : LookButton(look, text, nullptr)
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
        {ButtonLook::Plain, QStringLiteral("Aggiorna")},      {ButtonLook::Primary, QStringLiteral("Aggiungi")},
        {ButtonLook::Destructive, QStringLiteral("Elimina")}, {ButtonLook::Caution, QStringLiteral("Disattiva")},
        {ButtonLook::Borderless, QStringLiteral("Altro")},    {ButtonLook::Link, QStringLiteral("Scontrino")}};
    for (int row = 0; row < looks.size(); ++row) {
        for (std::size_t column = 0; column < touches.size(); ++column) {
            auto* button = new TouchedButton(touches.at(column), looks.at(row).first, looks.at(row).second);
            button->setSymbol(QStringLiteral("arrow.clockwise"));
            grid->addWidget(button, row, static_cast<int>(column));
        }
    }
    for (std::size_t column = 0; column < touches.size(); ++column) {
        auto* check = new Touched<QCheckBox>(touches.at(column), QStringLiteral("Attivo"));
        check->setChecked(column % 2 == 0);
        grid->addWidget(check, static_cast<int>(looks.size()), static_cast<int>(column));
        auto* radio = new Touched<QRadioButton>(touches.at(column), QStringLiteral("Un anno"));
        radio->setAutoExclusive(false);
        radio->setChecked(column % 2 == 0);
        grid->addWidget(radio, static_cast<int>(looks.size()) + 1, static_cast<int>(column));
        auto* tool = new IconButton(symbolIcon(QStringLiteral("line.3.horizontal.decrease")), QStringLiteral("Filtro"));
        setButtonLook(*tool, column % 2 == 0 ? ButtonLook::Plain : ButtonLook::Borderless);
        tool->setEnabled(touches.at(column) != Touch::Disabled);
        tool->setDown(touches.at(column) == Touch::Pressed);
        grid->addWidget(tool, static_cast<int>(looks.size()) + 2, static_cast<int>(column));
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
    empty->setPlaceholderText(QStringLiteral("Inserisci il nome"));
    auto* focused = new QLineEdit(QStringLiteral("Computer Suunto"));
    focused->setFocus();
    auto* disabled = new QLineEdit(QStringLiteral("Non modificabile"));
    disabled->setEnabled(false);
    auto* combo = new QComboBox;
    combo->addItem(symbolIcon(QStringLiteral("dive.regulator"), NamedColor::blue), QStringLiteral("Erogatore"));
    auto* plainCombo = new QComboBox;
    plainCombo->addItem(QStringLiteral("Manutenzione Annuale"));
    plainCombo->setEnabled(false);
    auto* date = new QDateEdit(QDate(2026, 11, 21));
    date->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    date->setCalendarPopup(true);
    auto* spin = new QSpinBox;
    spin->setSuffix(QStringLiteral(" giorni"));
    auto* text = new QPlainTextEdit(QStringLiteral("Una nota\nsu due righe"));
    text->setMaximumHeight(70);
    auto* bar = new QProgressBar;
    bar->setValue(40);
    for (QWidget* field :
         std::initializer_list<QWidget*>{empty, focused, disabled, combo, plainCombo, date, spin, text, bar})
        layout->addWidget(field);
    return scene;
}

std::unique_ptr<QWidget> table()
{
    auto table = std::make_unique<QTableWidget>(12, 3);
    table->setHorizontalHeaderLabels(
        {QStringLiteral("Nome"), QStringLiteral("Marca"), QStringLiteral("Prossimo Tagliando")});
    for (int row = 0; row < table->rowCount(); ++row) {
        auto* name = new QTableWidgetItem(QStringLiteral("Erogatore %1").arg(row + 1));
        name->setIcon(symbolIcon(QStringLiteral("dive.regulator"), NamedColor::blue));
        table->setItem(row, 0, name);
        table->setItem(row, 1, new QTableWidgetItem(QStringLiteral("Apeks")));
        table->setItem(row, 2, new QTableWidgetItem(QStringLiteral("21 novembre 2027")));
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
        list->addItem(new QListWidgetItem(symbolIcon(QStringLiteral("folder")), QString::fromUtf8(name)));
    list->setCurrentRow(1);
    list->resize(220, 160);
    return list;
}

std::unique_ptr<QWidget> menu()
{
    auto menu = std::make_unique<QMenu>();
    menu->addAction(symbolIcon(QStringLiteral("plus")), QStringLiteral("Nuova attrezzatura"))
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    auto* current = menu->addAction(symbolIcon(QStringLiteral("pencil")), QStringLiteral("Modifica"));
    menu->addSeparator();
    auto* checked = menu->addAction(QStringLiteral("Mostra i dettagli"));
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addMenu(QStringLiteral("Altro"))->addAction(QStringLiteral("Niente"));
    menu->addAction(symbolIcon(QStringLiteral("xmark"), NamedColor::red), QStringLiteral("Elimina"))->setEnabled(false);
    menu->setActiveAction(current);
    menu->resize(menu->sizeHint());
    return menu;
}

} // namespace

QList<Scene> controlScenes()
{
    return {{QStringLiteral("control-buttons"), buttons},
            {QStringLiteral("control-fields"), fields},
            {QStringLiteral("control-table"), table},
            {QStringLiteral("control-sidebar"), sidebarList},
            {QStringLiteral("control-menu"), menu}};
}

} // namespace abissora::gallery
