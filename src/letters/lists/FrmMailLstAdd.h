#pragma once

#include "core/handover/contacts_target.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"
#include "letters/lists/mail_list_sql.h"

#include <QSet>

class QLabel;
class QPushButton;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace letters {

/// Picks contacts for a mailing list or for the print selection, and sends them a page with which they tell
/// their address. Ticks stay while the list is narrowed down in another way.
class FrmMailLstAdd : public core::Screen, public core::ContactsTarget, public core::PageScreen {
    Q_OBJECT

public:
    explicit FrmMailLstAdd(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool takeContacts(const QList<qint64>& ids, const QString& listName) override;
    void openPage(const QString& page) override; ///< "Print" for the print selection, else a list
    bool isTouched() const override; ///< somebody was ticked, or a list named
    void bookChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Purpose { List, Print };

    void layOut();
    void connectControls();
    void setPurpose(Purpose purpose);
    void readContacts();
    void followTicks();
    void tickShown(bool ticked);
    void refresh();
    void store();
    void storeList();
    void storeSelection();
    void backToLists(const QString& page);
    void sendMail();
    AddFilter filter() const;
    QList<qint64> ticked() const; ///< in the order in which they were entered

    Purpose m_purpose = Purpose::List;
    QSet<qint64> m_ticked;
    QSet<qint64> m_stored; ///< with which it began: those of the print selection, or handed over
    widgets::HeadingGrid* Grid2;
    QList<widgets::FilledCombo*> m_filters; ///< first, last, city, category
    widgets::FilledCombo* cmbListName = nullptr;
    QLabel* lblCaption = nullptr;
    QLabel* lblCount = nullptr;
    QPushButton* Cmd1 = nullptr;
};

} // namespace letters
