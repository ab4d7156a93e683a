// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

namespace abissora {

/// A rounded window-modal dialog without a frame, centred over the window it belongs to, which it dims. When it closes,
/// the focus goes back to where it was. That window's own actions that hold in the whole application hold here, too.
/// While Alt is held, the access keys are underlined.
class SheetWindow : public QDialog
{
    Q_OBJECT

public:
    explicit SheetWindow(QWidget* parent);
    ~SheetWindow() override;

    void done(int result) override;

protected:
    /// What the sheet would like to have; less when the window below is smaller.
    [[nodiscard]] virtual QSize preferredSize() const = 0;
    [[nodiscard]] virtual QWidget* firstFocus() const = 0;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void setVisible(bool visible) override;

private:
    [[nodiscard]] QWidget* mainWindow() const;
    void takeOverCommands(const QWidget& below);
    void place();
    void cover();
    void uncover();

    QPointer<QWidget> m_opener;
    QPointer<QWidget> m_scrim;
};

} // namespace abissora
