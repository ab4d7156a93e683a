// SPDX-License-Identifier: MIT
// What the toolkit itself takes to show a window with an empty table; the start of the program is measured against it.
#include <QApplication>
#include <QMainWindow>
#include <QStandardItemModel>
#include <QTableView>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QStandardItemModel nothing(0, 6);
    QTableView table;
    table.setModel(&nothing);
    QMainWindow window;
    window.setCentralWidget(&table);
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}
