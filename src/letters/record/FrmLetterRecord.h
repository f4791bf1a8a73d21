#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/refreshable.h"
#include "core/screen.h"

namespace core {
class ListPresenter;
class ToolSet;
} // namespace core

namespace widgets {
class FoundStrip;
class HeadingGrid;
} // namespace widgets

namespace letters {

class LetterPane;
class RecordTools;

/// Every letter sent or received, in several orders, and the text of the one that is chosen.
class FrmLetterRecord : public core::Screen, public core::ContactScreen, public core::Refreshable {
    Q_OBJECT

public:
    explicit FrmLetterRecord(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    /// Only the letters to and from that person.
    bool showContact(qint64 id) override;
    void refreshList(const QString& sql) override;

private:
    void layOut();
    void connectTools();
    void open(const QString& sql, const QString& foundBy = {});
    void showColumns(QStringView headings, const QStringList& columns);
    void showAll();
    void followList();
    void remove();

    core::ToolSet* m_tools;
    widgets::HeadingGrid* m_grid;
    core::ListPresenter* m_list;
    widgets::FoundStrip* m_strip;
    RecordTools* m_recordTools;
    LetterPane* m_pane;
};

} // namespace letters
