#pragma once

#include "core/handover/page_screen.h"
#include "core/screen.h"

#include <functional>

class QTabWidget;

namespace core {
class SetupPanel;
}

namespace letters {

enum class ListTab;

/// The set-up of letters and mail: what their creators offer, and the stored texts. A tab is made and read
/// when it is looked at; other screens follow each change at once.
class FormLtrSetUp : public core::Screen, public core::PageScreen {
    Q_OBJECT

public:
    explicit FormLtrSetUp(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void openPage(const QString& page) override;
    void bookChanged() override;
    bool isTouched() const override;
    QSize sizeHint() const override;

private:
    using Panels = std::function<QList<QWidget*>()>;

    void addTab(Panels panels, const QString& caption, QStringView icon, const QString& helpCode);
    QWidget* pageOf(int tab);
    QList<QWidget*> listsOf(ListTab tab);
    QWidget* mailDatabase();
    QWidget* layOutFoot();
    void readTab();

    QTabWidget* SSTab1;
    QList<Panels> m_panels; ///< by tab
};

} // namespace letters
