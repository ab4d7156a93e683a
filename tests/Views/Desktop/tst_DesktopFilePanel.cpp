// SPDX-License-Identifier: MIT
#include "DesktopFilePanel.h"

#include "Alert.h"
#include "Buttons.h"
#include "ComponentTest.h"
#include "EnvironmentValue.h"
#include "Literals.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <sys/stat.h>

using namespace abissora;
using namespace abissora::test;

namespace {

bool beginsWithYes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().startsWith("yes");
}

/// A panel over a window, and what a person does in it.
class Asked
{
public:
    using Steps = std::function<void(QFileDialog&)>;

    Asked()
    {
        m_window.resize(1000, 700);
        activate(m_window);
    }

    std::optional<QString> pick(const Steps& steps)
    {
        goThrough(steps);
        return m_panel.pickFile(m_request);
    }
    std::optional<SaveTarget> save(const Steps& steps)
    {
        goThrough([&](QFileDialog& dialog) {
            dialog.setDirectory(m_folder.path());
            steps(dialog);
        });
        return m_panel.pickTarget(m_saveRequest);
    }
    QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("the temporary folder cannot be written");
        return file.fileName();
    }
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    FilePanelRequest& request() { return m_request; }

private:
    void goThrough(const Steps& steps)
    {
        QTimer::singleShot(0, &m_window, [steps] {
            QWidget* const modal = QApplication::activeModalWidget();
            auto* const dialog = qobject_cast<QFileDialog*>(modal);
            if (dialog == nullptr || !QTest::qWaitForWindowActive(dialog))
                qFatal("no file dialog");
            steps(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
    }

    QTemporaryDir m_folder;
    QWidget m_window;
    DesktopFilePanel m_panel;
    FilePanelRequest m_request{u"Scegli"_s,   u"Scegli un file"_s,         u"Allega"_s, {u"application/pdf"_s},
                               beginsWithYes, u"Non è un documento PDF."_s};
    SavePanelRequest m_saveRequest{u"Esporta"_s,
                                   u"Scegli dove"_s,
                                   u"Salva"_s,
                                   u"registro"_s,
                                   {{u"Articoli"_s, u"csv"_s}, {u"Calendario"_s, u"ics"_s}}};
};

void choose(QFileDialog& dialog, const QString& path)
{
    auto& field = existing<QLineEdit>(dialog, u"fileNameEdit"_s);
    dialog.activateWindow();
    field.setFocus();
    // Else the dialog takes what was chosen before for chosen, too.
    if (!QTest::qWaitFor([&field] { return field.hasFocus(); }))
        qFatal("the file dialog's field has no focus");
    field.setText(path);
    QTest::keyClick(&field, Qt::Key_Return);
}

QString nameIn(const QFileDialog& dialog)
{
    return existing<QLineEdit>(dialog, u"fileNameEdit"_s).text();
}

/// Gives the text of the notice and closes it.
QString dismissNotice(QFileDialog& dialog)
{
    auto* const notice = findDialog<Alert>(dialog);
    if (notice == nullptr)
        return u"(no notice)"_s;
    const QString message = notice->message();
    notice->close();
    settle();
    return message;
}

} // namespace

class tst_DesktopFilePanel : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAcceptedIsTaken()
    {
        Asked a;
        const QString path = a.write(u"senza estensione"_s, "yes");
        bool isOpen = true;
        const auto picked = a.pick([&](QFileDialog& dialog) {
            choose(dialog, path);
            isOpen = dialog.isVisible();
        });
        QCOMPARE(picked, std::optional(path));
        QVERIFY(!isOpen);
    }

    void whatIsRefusedLeavesThePanelOpen()
    {
        Asked a;
        const QString wrong = a.write(u"appunti.pdf"_s, "no");
        const QString right = a.write(u"scontrino.pdf"_s, "yes");
        QStringList notices;
        QList<bool> isOpen;
        const auto picked = a.pick([&](QFileDialog& dialog) {
            for (int time = 0; time < 2; ++time) {
                choose(dialog, wrong);
                notices.append(dismissNotice(dialog));
                isOpen.append(dialog.isVisible());
            }
            choose(dialog, right);
        });
        QCOMPARE(notices, QStringList({u"Non è un documento PDF."_s, u"Non è un documento PDF."_s}));
        QCOMPARE(isOpen, QList<bool>({true, true}));
        QCOMPARE(picked, std::optional(right));
    }

    void afterARefusalThePersonMayGiveUp()
    {
        Asked a;
        const QString wrong = a.write(u"appunti.pdf"_s, "no");
        QString notice;
        const auto picked = a.pick([&](QFileDialog& dialog) {
            choose(dialog, wrong);
            notice = dismissNotice(dialog);
            dialog.reject();
        });
        QCOMPARE(notice, u"Non è un documento PDF."_s);
        QCOMPARE(picked, std::nullopt);
    }

    void aPipeIsRefused()
    {
        Asked a;
        const QString pipe = a.path(u"pipe.pdf"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        a.request().accepts = [](const QString&) { return false; };
        QString notice;
        const auto picked = a.pick([&](QFileDialog& dialog) {
            choose(dialog, pipe);
            notice = dismissNotice(dialog);
        });
        QCOMPARE(notice, u"Non è un documento PDF."_s);
        QCOMPARE(picked, std::nullopt);
    }

    void aFolderIsEnteredNotChosen()
    {
        Asked a;
        QVERIFY(QDir().mkdir(a.path(u"cartella"_s)));
        QString notice;
        QString folder;
        const auto picked = a.pick([&](QFileDialog& dialog) {
            choose(dialog, a.path(u"cartella"_s));
            notice = dismissNotice(dialog);
            folder = dialog.directory().path();
        });
        QCOMPARE(notice, u"(no notice)"_s);
        QCOMPARE(folder, a.path(u"cartella"_s));
        QCOMPARE(picked, std::nullopt);
    }

    void withoutARuleEveryFileIsTaken()
    {
        Asked a;
        a.request().accepts = nullptr;
        const QString path = a.write(u"appunti.txt"_s, "no");
        QCOMPARE(a.pick([&](QFileDialog& dialog) { choose(dialog, path); }), std::optional(path));
    }

    void itsMessageStandsInIt()
    {
        Asked a;
        QString message;
        bool isAboveTheList = false;
        QVERIFY(!a.pick([&](QFileDialog& dialog) {
            const auto& label = part<QLabel>(dialog, u"message");
            message = label.text();
            isAboveTheList = label.geometry().bottom() < part(dialog, u"splitter").y();
        }));
        QCOMPARE(message, u"Scegli un file"_s);
        QVERIFY(isAboveTheList);
    }

    void speaksItalian()
    {
        Asked a;
        for (const auto& name : {u"scontrino.PDF"_s, u"b.pdf"_s})
            a.write(name, "yes");
        QVERIFY(QDir().mkdir(a.path(u"cartella"_s)));
        QFile old(a.path(u"b.pdf"_s));
        QVERIFY(old.open(QIODevice::ReadWrite));
        QVERIFY(old.setFileTime(QDateTime({2024, 2, 1}, {9, 30}), QFileDevice::FileModificationTime));
        old.close();
        QStringList rows;
        QStringList clipped;
        QVERIFY(!a.pick([&](QFileDialog& dialog) {
            dialog.setDirectory(a.path(u"."_s));
            auto& list = part<QTreeView>(dialog, u"treeView");
            const QAbstractItemModel& model = *list.model();
            QTRY_COMPARE(model.rowCount(list.rootIndex()), 3);
            settle();
            for (int row = 0; row < 3; ++row) {
                QStringList cells;
                for (int column = 0; column < 4; ++column) {
                    const QModelIndex cell = model.index(row, column, list.rootIndex());
                    if (column > 0 && list.sizeHintForIndex(cell).width() > list.columnWidth(column))
                        clipped.append(cell.data().toString());
                    if (column < 3 || row == 1)
                        cells.append(cell.data().toString());
                }
                rows.append(cells.join(u'|'));
            }
        }));
        QCOMPARE(rows, QStringList({u"cartella||Cartella"_s, u"b.pdf|3 byte|Documento PDF|01/02/2024 09:30"_s,
                                    u"scontrino.PDF|3 byte|Documento PDF"_s}));
        QCOMPARE(clipped, QStringList());
    }

    void filesAreOnlyChosen()
    {
        Asked a;
        const QString path = a.write(u"a.pdf"_s, "yes");
        QVERIFY(!a.pick([&](QFileDialog& dialog) {
            dialog.setDirectory(QFileInfo(path).path());
            auto& list = part<QTreeView>(dialog, u"treeView");
            QTRY_COMPARE(list.model()->rowCount(list.rootIndex()), 1);
            list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
            for (const auto key : {Qt::Key_Delete, Qt::Key_F2})
                QTest::keyClick(&list, key);
            settle();
            QVERIFY(findDialog(dialog) == nullptr);
            QVERIFY(!isShown(dialog, u"newFolderButton"));
        }));
        QVERIFY(QFile::exists(path));
    }

    void aNewFileIsNamedAndItsNameTellsTheFormat()
    {
        Asked a;
        QString offered;
        const auto target = a.save([&](QFileDialog& dialog) {
            offered = nameIn(dialog);
            choose(dialog, a.path(u"date.ics"_s));
        });
        QCOMPARE(offered, u"registro.csv"_s);
        QCOMPARE(target, std::optional(SaveTarget{a.path(u"date.ics"_s), 1}));
    }

    void aSelectedFormatGivesItsSuffix()
    {
        Asked a;
        QString name;
        const auto target = a.save([&](QFileDialog& dialog) {
            auto& formats = part<QComboBox>(dialog, u"fileTypeCombo");
            formats.setFocus();
            QTest::keyClick(&formats, Qt::Key_Down);
            name = nameIn(dialog);
            choose(dialog, a.path(u"senza"_s));
        });
        QCOMPARE(name, u"registro.ics"_s);
        QCOMPARE(target, std::optional(SaveTarget{a.path(u"senza.ics"_s), 1}));
    }

    // A sandbox grants the one name that was chosen; whatever is written beside it vanishes.
    void aFileThatASandboxGrantsKeepsItsName()
    {
        Asked a;
        const EnvironmentValue runtime("XDG_RUNTIME_DIR", QFile::encodeName(a.path(u"run"_s)));
        const QString granted = a.path(u"run/doc/1a2b3c"_s);
        QVERIFY(QDir().mkpath(granted));
        const auto plain = a.save([&](QFileDialog& dialog) { choose(dialog, granted + u"/senza"_s); });
        QCOMPARE(plain, std::optional(SaveTarget{granted + u"/senza"_s, 0}));
        const auto named = a.save([&](QFileDialog& dialog) { choose(dialog, granted + u"/tagliandi.ics"_s); });
        QCOMPARE(named, std::optional(SaveTarget{granted + u"/tagliandi.ics"_s, 1}));
        const auto other = a.save([&](QFileDialog& dialog) { choose(dialog, a.path(u"run/senza"_s)); });
        QCOMPARE(other, std::optional(SaveTarget{a.path(u"run/senza.csv"_s), 0}));
    }

    void aFileIsReplacedOnlyWhenThePersonSaysSo()
    {
        Asked a;
        a.write(u"registro.csv"_s, "yes");
        QStringList questions;
        const auto kept = a.save([&](QFileDialog& dialog) {
            choose(dialog, a.path(u"registro"_s)); // without the suffix that it gets
            questions.append(dismissNotice(dialog));
        });
        QCOMPARE(kept, std::nullopt);
        QCOMPARE(questions, QStringList{u"Esiste già un file di nome «registro.csv». Sostituirlo?"_s});
        const auto replaced = a.save([&](QFileDialog& dialog) {
            choose(dialog, a.path(u"registro.csv"_s));
            auto* const question = findDialog<Alert>(dialog);
            QVERIFY(question != nullptr);
            QCOMPARE(question->destructiveButton()->text(), u"Sostituisci"_s);
            QTest::mouseClick(question->destructiveButton(), Qt::LeftButton);
            settle();
        });
        QCOMPARE(replaced, std::optional(SaveTarget{a.path(u"registro.csv"_s), 0}));
    }

    void aNewFileLiesInAFolderThatExists()
    {
        Asked a;
        QVERIFY(QDir().mkdir(a.path(u"x.csv"_s)));
        QStringList notices;
        const auto target = a.save([&](QFileDialog& dialog) {
            for (const auto& name : {u"nessuna/registro.csv"_s, u"x"_s}) {
                choose(dialog, a.path(name));
                notices.append(dismissNotice(dialog));
            }
        });
        QCOMPARE(target, std::nullopt);
        QCOMPARE(notices, QStringList({u"La cartella «%1» non esiste."_s.arg(a.path(u"nessuna"_s)),
                                       u"«x.csv» è una cartella."_s}));
    }

    void opensWhereTheLastFileWas()
    {
        Asked a;
        const QString path = a.write(u"a.pdf"_s, "yes");
        QVERIFY(a.pick([&](QFileDialog& dialog) {
            dialog.setDirectory(QFileInfo(path).path());
            choose(dialog, u"a.pdf"_s);
        }));
        QString folder;
        QVERIFY(!a.pick([&](QFileDialog& dialog) { folder = dialog.directory().path(); }));
        QCOMPARE(folder, QFileInfo(path).path());
    }
};

ABISSORA_TEST(tst_DesktopFilePanel);
#include "tst_DesktopFilePanel.moc"
