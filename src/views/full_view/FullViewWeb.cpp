#include "views/full_view/FullViewWeb.h"

#include "core/contact_tools.h"
#include "core/save_failure.h"
#include "core/settings.h"
#include "output/labels/print_address_report.h"
#include "platform/card_folder.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "views/full_view/address_source.h"
#include "views/full_view/source_tools.h"
#include "widgets/fields.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace views {

namespace {

// Kept: a filter that is opened here goes to the full view, and the list here stays as it is.
constexpr FullViewKind kSmartView{
    QT_TRANSLATE_NOOP("views", "Smart view"), u"Contacts Full View", u"FullView", true};

constexpr int kLabelTypes = 5;

} // namespace

FullViewWeb::FullViewWeb(core::Context& context, QWidget* parent)
    : FullView(context, kSmartView, parent)
    , m_sources(new SourceTools(context, this))
{
    addCommandRow(m_sources->row());
    makeLabelTools();
    connect(m_sources, &SourceTools::chosen, this, &FullViewWeb::choose);
    connect(m_sources, &SourceTools::folderWanted, this, &FullViewWeb::chooseFolder);
    connect(m_sources, &SourceTools::keywordsWanted, tools().action(u"Search"), &QAction::trigger);
    connect(this, &FullView::bookChosen, this, [this](bool own) {
        m_sources->allowKeywords(own);
        if (own)
            m_sources->setCurrent(Source::OwnBook);
    });
    auto* menu = widgets::child<QMenu>(this, u"Menu"_s);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { prepareMenu(menu); });
}

// The layouts of a label hang below the tool that prints one.
void FullViewWeb::makeLabelTools()
{
    auto* types = new QMenu(this);
    types->setObjectName(u"PrintLabelMenu"_s);
    types->setToolTipsVisible(true);
    for (int type = 1; type <= kLabelTypes; ++type) {
        QAction* action = types->addAction(tr("Label type %1").arg(type));
        action->setObjectName(u"Type%1"_s.arg(type));
        connect(action, &QAction::triggered, this, [this, type] {
            if (shownName().trimmed().isEmpty())
                return inform(tr("Record not selected"));
            output::PrintAddressReport(context(), static_cast<output::AddressLayout>(type - 1), shownName());
        });
    }
    tools().action(u"PrintLabel")->setMenu(types);
}

void FullViewWeb::choose(Source source)
{
    const core::Services& services = context().services;
    switch (source) {
    case Source::OwnBook: return browse(nullptr);
    case Source::MailClient: return browse(mailClientSource(services.mailContacts));
    case Source::CardFolder: return chooseCards();
    case Source::AddressBook:
        return browse(addressBookSource(services.drive, platform::addressBookFolder(services.folders)));
    }
}

void FullViewWeb::chooseCards()
{
    const QString folder = core::readSettings(context().data).textOrEmpty(u"VCFPath").trimmed();
    auto cards = cardFolderSource(context().services.drive, folder);
    if (cards->count() > 0)
        return browse(std::move(cards));
    inform(tr("Please Select Correct Path in Setup"));
    m_sources->setCurrent(Source::OwnBook);
    browse(nullptr);
}

void FullViewWeb::chooseFolder()
{
    const auto chosen = context().services.boxes.folder(tr("Folder of the vCard files"));
    if (!chosen)
        return;
    const QString path = context().services.drive.named(*chosen);
    if (path.isEmpty())
        return warn(tr("This folder lies outside drive C:, where vCard files are looked for."));
    if (!core::storeSetting(context().data, u"VCFPath", path))
        return core::tellFailedSave(context());
    if (m_sources->current() == Source::CardFolder)
        chooseCards();
}

// In the edition that is for mail alone the menu leads with the mail.
void FullViewWeb::prepareMenu(QMenu* menu)
{
    const jet::Recordset setup = context().data.openRecordset(u"select * from ov_setup"_s);
    menu->setDefaultAction(setup.flag(u"Email") ? tools().action(u"Email2") : nullptr);
}

} // namespace views
