// SPDX-License-Identifier: MIT
// abissora-waits: uses the whole program as a person does, over a register of 10,000 items, and prints for each thing
// that is done how long at most the window did not answer, with the longest at the end. Times in milliseconds and as
// multiples of the work that every benchmark counts in. Build it with the preset "release" and run it with
// QT_QPA_PLATFORM=offscreen.
//
//   abissora-waits [ITEMS] >/dev/null
//
// The program's own log has the standard output; the table goes to the standard error.
#include "Alert.h"
#include "ContentView.h"
#include "EquipmentDetailView.h"
#include "EquipmentTableView.h"
#include "Export.h"
#include "FolderLock.h"
#include "Gui.h"
#include "MainWindow.h"
#include "OutputFile.h"
#include "Pulse.h"
#include "RecordJson.h"
#include "Register.h"
#include "Report.h"
#include "Session.h"
#include "StorageManager.h"
#include "UpdateSource.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTimer>

using namespace abissora;
using namespace abissora::benchmark;
using namespace abissora::test;

namespace {

constexpr int patience = 60'000; ///< milliseconds for work that goes on elsewhere

QList<QDialog*> openDialogs()
{
    QList<QDialog*> dialogs;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(window); dialog != nullptr && dialog->isVisible())
            dialogs.append(dialog);
    }
    return dialogs;
}

QDialog& dialogInFront()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr)
        qFatal("no dialog is open");
    return *dialog;
}

/// Uses the program and prints how long it did not answer.
class Person
{
public:
    Person(Session& session, Duration unit)
        : m_session(session)
        , m_unit(unit)
    {
        std::fprintf(stderr, "%-66s %10s %9s\n", "the longest time without an answer", "ms", "ratio");
    }

    MainWindow& window() { return m_session.mainWindow(); }
    ContentView& content() { return window().content(); }
    EquipmentTableView& table() { return existing<EquipmentTableView>(window(), u"equipmentTable"_s); }
    QWidget& detail() { return part<EquipmentDetailView>(window(), u"equipmentDetail"_s); }

    /// What is done, until nothing of it is left and `isDone`.
    template <typename Verb>
    void does(
        const char* what, Verb verb, const std::function<bool()>& isDone = [] { return true; })
    {
        settle();
        m_pulse.begin();
        verb();
        settle();
        if (!QTest::qWaitFor(isDone, patience))
            qFatal("%s: it does not end", what);
        settle();
        const Duration longest = m_pulse.longest();
        print(what, longest);
        if (longest > m_longest) {
            m_longest = longest;
            m_worst = what;
        }
    }

    void tells() const
    {
        std::fputc('\n', stderr);
        print(("longest of all: " + m_worst).c_str(), m_longest);
    }

    void menu(const QString& text) { command(*window().menuBar(), text)->trigger(); }

    /// In the file panel that is about to open.
    void willChoose(const QString& path, int format = 0)
    {
        QTimer::singleShot(0, &window(), [path, format] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !QTest::qWaitForWindowActive(dialog))
                qFatal("no file dialog");
            if (format > 0) {
                dialog->selectNameFilter(dialog->nameFilters().at(format));
                Q_EMIT dialog->filterSelected(dialog->nameFilters().at(format));
            }
            auto& field = existing<QLineEdit>(*dialog, u"fileNameEdit"_s);
            field.setFocus();
            field.setText(path);
            QTest::keyClick(&field, Qt::Key_Return);
        });
    }

    /// Closes notices and alerts by their safe button.
    static void dismiss()
    {
        while (QWidget* const modal = QApplication::activeModalWidget()) {
            modal->close();
            settle();
        }
    }

private:
    static QAction* command(const QWidget& bar, const QString& text)
    {
        for (QAction* menu : bar.actions()) {
            for (QAction* entry : menu->menu()->actions()) {
                if (entry->text().remove(u'&') == text)
                    return entry;
            }
        }
        qFatal("no menu has %s", qUtf8Printable(text));
    }
    void print(const char* what, Duration longest) const
    {
        std::fprintf(stderr, "%-66s %10.1f %9.2f\n", what, longest.count(), longest / m_unit);
    }

    Session& m_session;
    Duration m_unit;
    Pulse m_pulse;
    Duration m_longest{};
    std::string m_worst;
};

bool hasDialog(const char* objectName)
{
    const QList<QDialog*> dialogs = openDialogs();
    return std::ranges::any_of(dialogs, [objectName](const QDialog* dialog) {
        return dialog->findChild<QWidget*>(QString::fromLatin1(objectName)) != nullptr;
    });
}

bool hasNotice()
{
    return qobject_cast<const Alert*>(QApplication::activeModalWidget()) != nullptr;
}

void useList(Person& person)
{
    person.table().setFocus();
    person.does("an item selected", [&] { QTest::keyClick(&person.table(), Qt::Key_Down); });
    person.does("the arrow key held down for a hundred items, each painted", [&] {
        for (int row = 0; row < 100; ++row) {
            QTest::keyClick(&person.table(), Qt::Key_Down);
            settle();
        }
    });
    person.does("the end of the list", [&] { QTest::keyClick(&person.table(), Qt::Key_End); });
    auto& search = existing<QLineEdit>(person.window(), u"search"_s);
    for (const char* letter : {"m", "o", "d"})
        person.does("a letter in the search", [&] { QTest::keyClicks(&search, QLatin1String(letter)); });
    person.does("the search deleted", [&] { search.clear(); });
    person.does("the list refreshed", [&] { person.menu(u"Aggiorna"_s); });
    for (int row : {1, 2, 5, 0}) {
        person.does("another row of the sidebar", [&] {
            auto& sidebar = part<QListView>(person.window(), u"sidebar"_s);
            sidebar.setCurrentIndex(sidebar.model()->index(row, 0));
        });
    }
    person.menu(u"Attrezzatura"_s);
}

void changeItems(Person& person)
{
    person.table().setFocus();
    QTest::keyClick(&person.table(), Qt::Key_Home);
    settle();
    person.does("an item taken out of use", [&] { click(person.detail(), u"toggleActive"); });
    person.does("the form for a new item", [&] { person.menu(u"Aggiungi"_s); });
    type(dialogInFront(), u"name", u"Nuovo"_s);
    type(dialogInFront(), u"brand", u"Marca"_s);
    type(dialogInFront(), u"model", u"Modello"_s);
    type(dialogInFront(), u"serialNumber", u"Z-1"_s);
    person.does("a new item stored", [&] { click(dialogInFront(), u"primary"); });
    person.does("the form for an item", [&] { click(person.detail(), u"editEquipment"); });
    type(dialogInFront(), u"name", u"Altro nome"_s);
    person.does("a changed item stored", [&] { click(dialogInFront(), u"primary"); });
    person.does("the form for a maintenance", [&] { click(person.detail(), u"addMaintenance"); });
    type(dialogInFront(), u"description", u"Revisione"_s);
    person.does("a new maintenance stored", [&] { click(dialogInFront(), u"primary"); });
    person.does("a maintenance edited", [&] { click(person.detail(), u"editMaintenance"); });
    person.does("a changed maintenance stored", [&] { click(dialogInFront(), u"primary"); });
    person.does("a maintenance to be deleted", [&] { click(person.detail(), u"deleteMaintenance"); });
    person.does("a maintenance deleted", [&] { press(dialogInFront(), u"Elimina"_s); });
    person.does("an item to be deleted", [&] { click(person.detail(), u"deleteEquipment"); });
    person.does("an item deleted", [&] { press(dialogInFront(), u"Elimina"_s); });
}

void visitPages(Person& person)
{
    for (const char* page : {"Manutenzione", "Statistiche", "Impostazioni"})
        person.does(page, [&] { person.menu(QLatin1String(page)); });
    for (const char* toggle : {"darkMode", "darkMode"})
        person.does("the other scheme", [&] { click(person.window(), QLatin1String(toggle)); });
    person.does("the types", [&] { click(person.window(), u"manageTypes"); });
    person.does("the form for a type", [&] { click(dialogInFront(), u"editType"); });
    type(dialogInFront(), u"name", u"Altro tipo"_s);
    person.does("a type of 900 items renamed", [&] { click(dialogInFront(), u"primary"); });
    person.does("the types reset", [&] { click(dialogInFront(), u"resetTypes"); });
    Person::dismiss();
    person.menu(u"Manutenzione"_s);
    person.does("a due item stored with the overview open", [&] { person.menu(u"Disattiva"_s); });
    person.does("back to the list", [&] { person.menu(u"Attrezzatura"_s); });
}

void useFiles(Person& person, const QDir& folder)
{
    const auto& formats = exportFormats();
    for (int format = 0; format < formats.size(); ++format) {
        const QString path = folder.filePath(u"%1.%2"_s.arg(QString::number(format), formats.at(format).suffix));
        person.does(
            qUtf8Printable(u"exported: "_s + formats.at(format).name),
            [&] {
                person.willChoose(path, format);
                person.menu(u"Esporta…"_s);
            },
            hasNotice);
        Person::dismiss();
    }
    for (const char* file : {"0.csv", "new.csv", "1.csv", "3.json"}) {
        person.does(
            qUtf8Printable(u"import of %1 shown"_s.arg(QLatin1String(file))),
            [&] {
                person.willChoose(folder.filePath(QLatin1String(file)));
                person.menu(u"Importa…"_s);
            },
            [] { return hasDialog("importView"); });
        if (auto* column = dialogInFront().findChild<QComboBox*>(u"column2"_s); column != nullptr) {
            for (const int choice : {column->count() - 1, column->currentIndex()}) {
                person.does("another column chosen", [&] {
                    auto& picker = usable<QComboBox>(dialogInFront(), u"column2");
                    picker.setCurrentIndex(choice);
                    Q_EMIT picker.activated(choice);
                });
            }
        }
        if (QLatin1String(file) == "new.csv"_L1) {
            person.does(
                "imported", [&] { click(dialogInFront(), u"import"); }, hasNotice);
        }
        Person::dismiss();
    }
}

void print(Person& person, const QDir& folder)
{
    const auto isLaidOut = [] { return part(dialogInFront(), u"savePdf").isEnabled(); };
    person.does(
        "the way to paper", [&] { person.menu(u"Stampa…"_s); }, [] { return hasDialog("printView"); });
    for (const char* what : {"Elenco", "Scadenze", "Elenco"})
        person.does(
            what, [&] { press(dialogInFront(), QLatin1String(what)); }, isLaidOut);
    person.does("the next page", [&] { click(dialogInFront(), u"pageOn"); });
    person.does(
        "the list saved as PDF",
        [&] {
            person.willChoose(folder.filePath(u"list.pdf"_s));
            click(dialogInFront(), u"savePdf");
        },
        [] { return !hasDialog("printView"); });
}

void goBack(Person& person, const QDir& folder)
{
    person.does(
        "a copy of the register written",
        [&] {
            person.willChoose(folder.filePath(u"copy.zip"_s));
            person.menu(u"Crea una copia…"_s);
        },
        hasNotice);
    Person::dismiss();
    person.does(
        "the way back", [&] { person.menu(u"Ripristina…"_s); }, [] { return hasDialog("restoreView"); });
    for (int state = 0; state < 3; ++state)
        person.does("another state chosen", [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down); });
    person.does(
        "a copy opened",
        [&] {
            person.willChoose(folder.filePath(u"copy.zip"_s));
            click(dialogInFront(), u"fromFile");
        },
        [] { return usable(dialogInFront(), u"restore").isEnabled(); });
    person.does(
        "a copy restored", [&] { click(dialogInFront(), u"restore"); }, [] { return openDialogs().isEmpty(); });
    person.menu(u"Ripristina…"_s);
    settle();
    person.does(
        "a state restored", [&] { click(dialogInFront(), u"restore"); }, [] { return openDialogs().isEmpty(); });
}

void write(const QString& path, const QByteArray& bytes)
{
    if (!QDir().mkpath(QFileInfo(path).path()) || !OutputFile::write(path, bytes))
        qFatal("%s cannot be written", qUtf8Printable(path));
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    });
    QApplication application(argc, argv);
    const int count = std::max(2, QCoreApplication::arguments().value(1, u"10000"_s).toInt());
    const QTemporaryDir folder;
    const QDir files(folder.filePath(u"files"_s));
    const ApplicationDirectories directories(folder.filePath(u"register"_s), true);
    const SystemClock clock;
    const QList<Equipment> items = registerOf(count, clock.now());
    write(directories.preferences() + u'/' + StorageManager::equipmentKey + u".json"_s, encode(items).value());
    QByteArray rows = "Nome;Tipo;Marca;Modello;Numero Seriale;Data Acquisto;Ultima Revisione;Prossima Revisione\r\n";
    for (int i = 0; i < count; ++i)
        rows += QByteArray::number(i) + ";Altro;Nuova;M;N-" + QByteArray::number(i) +
                ";01/02/2020;03/04/2025;03/04/2026\r\n";
    write(files.filePath(u"new.csv"_s), rows);

    NoHttpClient nobody;
    FolderLock lock(directories.root());
    Session session(application, directories, Product::builtIn(), nobody, lock);
    session.mainWindow().resize(1280, 800);
    Person person(session, medianOf(51, reference));
    person.does("the main window", [&] { session.showMainWindow(); });
    activate(person.window());
    useList(person);
    changeItems(person);
    visitPages(person);
    useFiles(person, files);
    print(person, files);
    goBack(person, files);
    person.tells();
    session.mainWindow().close();
    return 0;
}
