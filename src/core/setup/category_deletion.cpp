#include "core/setup/category_deletion.h"

#include "core/store/backups.h"
#include "core/vocabularies.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QButtonGroup>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

using namespace Qt::StringLiterals;
using widgets::child;

namespace setup {

namespace {

constexpr QStringView kBackupFolder = u"C:\\OVUserFiles\\Others\\Backup";

} // namespace

CategoryDeletion::CategoryDeletion(core::Context& context, QWidget* parent)
    : core::SetupPanel(context, parent)
    , m_choice(new QButtonGroup(this))
    , optDel1(new QRadioButton(tr("Delete Category name ")))
    , optDel3(new QRadioButton(tr("Delete Category && move all Records to")))
    , optDel2(new QRadioButton(tr("Delete Category  && all Records")))
    , m_what(new QLabel)
    , m_hint(core::makeHint(u"lblDelHint"_s))
{
    layOut();
    connectControls();
    hide();
}

void CategoryDeletion::layOut()
{
    for (QRadioButton* each : {optDel1, optDel3, optDel2}) {
        each->setAccessibleName(each->text().replace(u"&&"_s, u"&"_s).trimmed());
        m_choice->addButton(each);
    }
    optDel1->setToolTip(tr("The name is offered no more; the contacts keep it"));
    optDel2->setToolTip(tr("The contacts are deleted at once; a copy of the address book is made before"));
    m_what->setTextFormat(Qt::PlainText);
    m_what->setWordWrap(true);
    widgets::FormKit form(this);
    form.group(tr("Delete"))
        .wide(u"lblDelWhat"_s, tr("Category to delete"), m_what)
        .wide(u"optDel1"_s, optDel1->accessibleName(), optDel1)
        .wide(u"optDel3"_s, optDel3->accessibleName(), optDel3)
        .fixedCombo(u"cmbCateg1"_s, tr("Category"))
        .fixedCombo(u"cmbCateg2"_s, tr("Sub category"))
        .wide(u"optDel2"_s, optDel2->accessibleName(), optDel2)
        .button(u"cmddelok"_s, tr("&OK"), u"delete", tr("Delete as chosen"))
        .button(u"cmddelcancel"_s, tr("Keep it"), u"cancel", tr("Delete nothing (Esc)"))
        .wide(u"lblDelHint"_s, tr("Hint"), m_hint);
    layout()->setContentsMargins(0, 0, 0, 0);
    cmbCateg1 = child<widgets::FilledCombo>(this, u"cmbCateg1"_s);
    cmbCateg2 = child<widgets::FilledCombo>(this, u"cmbCateg2"_s);
}

void CategoryDeletion::connectControls()
{
    cmbCateg1->setSource([this] { return core::firstColumn(data(), treeCategoriesSql()); });
    cmbCateg2->setSource(
        [this] { return core::firstColumn(data(), targetSubcategoriesSql(cmbCateg1->currentText())); });
    connect(cmbCateg1, &QComboBox::currentTextChanged, this, [this] {
        cmbCateg2->refill();
        cmbCateg2->setText({});
    });
    connect(m_choice, &QButtonGroup::buttonToggled, this, &CategoryDeletion::followChoice);
    connect(
        child<QPushButton>(this, u"cmddelok"_s), &QPushButton::clicked, this, &CategoryDeletion::carryOut);
    const auto giveUp = [this] {
        playSound(u"Cancel");
        hide();
    };
    connect(child<QPushButton>(this, u"cmddelcancel"_s), &QPushButton::clicked, this, giveUp);
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, giveUp);
}

void CategoryDeletion::ask(const core::Category& category)
{
    m_category = category;
    m_what->setText(category.category + u" - "_s + category.subcategory);
    // Nothing is chosen beforehand: one of the choices can not be taken back easily.
    m_choice->setExclusive(false);
    for (QAbstractButton* each : m_choice->buttons())
        each->setChecked(false);
    m_choice->setExclusive(true);
    refresh();
    followChoice();
    show();
    optDel1->setFocus();
}

void CategoryDeletion::refresh()
{
    cmbCateg1->refill();
    cmbCateg1->setText({});
    cmbCateg2->refill();
    cmbCateg2->setText({});
}

void CategoryDeletion::followChoice()
{
    cmbCateg1->setEnabled(optDel3->isChecked());
    cmbCateg2->setEnabled(optDel3->isChecked());
    m_hint->clear();
}

// Kept: contacts that go with their category go without a further question.
void CategoryDeletion::carryOut()
{
    if (!m_choice->checkedButton())
        return inform(tr("Select choices for deletion"));
    const DeleteWay way = optDel1->isChecked() ? DeleteWay::NameOnly
        : optDel3->isChecked()                 ? DeleteWay::MoveContacts
                                               : DeleteWay::DeleteContacts;
    const core::Category target{cmbCateg1->currentText(), cmbCateg2->currentText()};
    if (way == DeleteWay::MoveContacts && !isTargetFit(target))
        return;
    if (way == DeleteWay::DeleteContacts && !keepCopy())
        return;
    const jet::Step step(data(), tr("deleting the category %1").arg(m_category.category));
    if (!deleteCategory(data(), way, m_category, target))
        return m_hint->setText(notStored(tr("The category could not be deleted.")));
    playSound(u"Del");
    hide();
    Q_EMIT deleted();
    Q_EMIT vocabulariesChanged();
    if (way != DeleteWay::NameOnly)
        Q_EMIT contactsChanged();
}

bool CategoryDeletion::isTargetFit(const core::Category& target)
{
    const bool hasSubcategory = !target.subcategory.isEmpty() || cmbCateg2->values().isEmpty();
    if (target.category.isEmpty() || !hasSubcategory) {
        m_hint->setText(tr("Choose the category to which the records move."));
        return false;
    }
    if (target.category.compare(m_category.category, Qt::CaseInsensitive) == 0
        && target.subcategory.compare(m_category.subcategory, Qt::CaseInsensitive) == 0) {
        m_hint->setText(tr("Choose another category than the one that goes."));
        return false;
    }
    return true;
}

bool CategoryDeletion::keepCopy()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QString folder = context().services.drive.local(kBackupFolder);
    const bool kept
        = !folder.isEmpty() && core::keepBeforeDeletion(data(), folder, context().services.clock.now());
    QGuiApplication::restoreOverrideCursor();
    if (!kept)
        context().services.boxes.warning(tr("Nothing was deleted: no copy of the address book could be made "
                                            "in \"%1\" before. Make room on "
                                            "the disk, or see that the folder can be written, and try again.")
                                             .arg(kBackupFolder),
            context().shared.AppTitle);
    return kept;
}

} // namespace setup
