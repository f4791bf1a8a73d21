#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/filter_target.h"
#include "core/screen.h"

class QLabel;

namespace widgets {
class FilledCombo;
class RecordList;
} // namespace widgets

namespace entry {

struct DuplicateChoice;

/// Makes somebody who is only named in a contact, such as the spouse or the firm, a contact of their own,
/// which takes over as much of the addresses and numbers as is asked for.
class FrmDuplicator : public core::Screen, public core::ContactScreen, public core::FilterTarget {
    Q_OBJECT

public:
    explicit FrmDuplicator(core::Context& context, QWidget* parent = nullptr);
    ~FrmDuplicator() override;

    void load() override;
    bool showContact(qint64 id) override;
    void applyFilter(const QString& whereClause) override;
    void bookChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* layOutSource();
    QWidget* layOutDuplicate();
    void connectControls();
    void readNames();
    void showSource(const QString& name);
    void showWhatComes();
    const DuplicateChoice* chosen() const;
    void duplicate();
    void askFilter();

    QString m_clause; ///< of a filter
    QString m_source; ///< its name; empty when there is none
    QString m_last; ///< the last name of the source
    widgets::RecordList* DBCombo1;
    widgets::FilledCombo* m_listCategory = nullptr;
    widgets::FilledCombo* DBCategory = nullptr;
    widgets::FilledCombo* DBCSub = nullptr;
    QLabel* m_coming = nullptr;
};

} // namespace entry
