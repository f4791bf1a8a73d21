#pragma once

#include "core/handover/file_target.h"
#include "core/screen.h"
#include "transfer/cards/card_files.h"

#include <memory>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableView;
class QTabWidget;
class QTemporaryDir;

namespace widgets {
class HeadingGrid;
}

namespace transfer {

class IncomingList;

/// Takes in the vCards of telephones and other programs: files, folders, or what is dropped here. Shows each
/// contact as it will be stored, which of them may be there already, and what does not come in and why;
/// nothing is stored before the person says so, and then all that is ticked in one step.
class FormCardImport : public core::Screen, public core::FileTarget {
    Q_OBJECT

public:
    explicit FormCardImport(core::Context& context, QWidget* parent = nullptr);
    ~FormCardImport() override;

    void load() override;
    void openFiles(const QStringList& files) override;
    bool mayClose() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void layOut();
    void connectControls();
    void chooseFiles();
    void chooseFolder();
    void read(const QStringList& files);
    void show(IncomingCards cards);
    void followTicks();
    void import();
    void tellStored(int added, int photosLost);

    IncomingList* m_list;
    QTableView* m_cards;
    widgets::HeadingGrid* m_left;
    QTabWidget* m_pages = nullptr;
    QPlainTextEdit* m_detail;
    QLabel* m_summary = nullptr;
    QCheckBox* m_all = nullptr;
    QPushButton* m_import = nullptr;
    std::shared_ptr<QTemporaryDir> m_photos;
    bool m_isBusy = false;
    QStringList m_waiting; ///< files that came while others were read or stored
};

} // namespace transfer
