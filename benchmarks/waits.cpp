// SPDX-License-Identifier: MIT
// abissora-waits: uses the whole program as a person does, over a register of 10,000 items, and prints for each thing
// that is done how long at most the window did not answer, with the longest at the end. Times in milliseconds and as
// multiples of the work that every benchmark counts in. Build it with the preset "release" and run it with
// QT_QPA_PLATFORM=offscreen.
//
//   abissora-waits [ITEMS] >/dev/null
//
// The program's own log has the standard output; the table goes to the standard error.
#include "Export.h"
#include "FolderLock.h"
#include "OutputFile.h"
#include "Person.h"
#include "RecordJson.h"
#include "Register.h"
#include "Report.h"
#include "StorageManager.h"
#include "UpdateSource.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QListView>
#include <QPointer>
#include <QTemporaryDir>

using namespace abissora;
using namespace abissora::benchmark;
using namespace abissora::test;

namespace {

/// What the rows to be imported are read as, in a column of the file.
QString titleOfColumn(int column)
{
    const auto* const table = partOfDialog<QAbstractItemView>(u"importTable"_s);
    return table == nullptr ? QString() : table->model()->headerData(column + 1, Qt::Horizontal).toString();
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
    for (int row : {2, 5, 1}) {
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
            [] { return partOfDialog(u"importView"_s) != nullptr; });
        if (auto* column = dialogInFront().findChild<QComboBox*>(u"column2"_s); column != nullptr) {
            for (const int choice : {column->count() - 1, column->currentIndex()}) {
                const QString title = column->itemText(choice);
                person.does(
                    "another column chosen",
                    [&] {
                        auto& picker = usable<QComboBox>(dialogInFront(), u"column2");
                        picker.setCurrentIndex(choice);
                        Q_EMIT picker.activated(choice);
                    },
                    [&] { return titleOfColumn(2) == title; });
            }
        }
        Person::dismiss();
    }
}

void print(Person& person, const QDir& folder)
{
    const auto isLaidOut = [] { return isEnabledInDialog(u"savePdf"_s); };
    person.does(
        "the way to paper", [&] { person.menu(u"Stampa…"_s); }, [] { return partOfDialog(u"printView"_s) != nullptr; });
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
        [] { return partOfDialog(u"printView"_s) == nullptr; });
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
    const auto isOfCopy = [] {
        const auto* const title = partOfDialog<QLabel>(u"stateTitle"_s);
        return title != nullptr && title->text().startsWith(u"Copia del"_s);
    };
    person.does(
        "the way back", [&] { person.menu(u"Ripristina…"_s); }, [] { return isEnabledInDialog(u"restore"_s); });
    for (int state = 0; state < 3; ++state) {
        const QPointer<QWidget> differences = dialogInFront().findChild<QWidget*>(u"differences"_s);
        person.does(
            "another state chosen", [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down); },
            [&] { return differences.isNull(); });
    }
    person.does(
        "a copy opened",
        [&] {
            person.willChoose(folder.filePath(u"copy.zip"_s));
            click(dialogInFront(), u"fromFile");
        },
        [&] { return isOfCopy() && isEnabledInDialog(u"restore"_s); });
    const auto isInPlace = [&] { return openDialogs().isEmpty() && person.window().isEnabled(); };
    person.does(
        "a copy restored", [&] { click(dialogInFront(), u"restore"); }, isInPlace);
    person.does(
        "the way back, now that another register is there", [&] { person.menu(u"Ripristina…"_s); },
        [] { return isEnabledInDialog(u"restore"_s); });
    person.does(
        "a state restored", [&] { click(dialogInFront(), u"restore"); }, isInPlace);
}

void importAsMany(Person& person, const QDir& folder)
{
    person.willChoose(folder.filePath(u"new.csv"_s));
    person.menu(u"Importa…"_s);
    if (!QTest::qWaitFor([] { return isEnabledInDialog(u"import"_s); }, patience))
        qFatal("nothing can be imported");
    person.does(
        "as many new items imported and stored", [&] { click(dialogInFront(), u"import"); }, hasNotice);
    Person::dismiss();
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
    write(directories.preferences() + u'/' + StorageManager::equipmentKey + u".json"_s, *encode(items));
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
    importAsMany(person, files);
    person.tells();
    session.mainWindow().close();
    return 0;
}
