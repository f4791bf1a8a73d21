#include "core/shell/FrmPrgView.h"

#include "core/frame.h"
#include "core/shell/frame_settings.h"
#include "core/shell/program_view_rows.h"
#include "core/shell/tool_bar_table.h"
#include "widgets/theme.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int kTool = Qt::UserRole; ///< the id, empty for a subject

QString plain(const char* caption)
{
    QString text = QCoreApplication::translate("shell", caption);
    text.replace(u"&&"_s, u"\n"_s).remove(u'&').replace(u'\n', u'&');
    return text;
}

QString toolOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, kTool).toString() : QString();
}

QTreeWidgetItem* firstInSight(const QTreeWidget* tree)
{
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem* subject = tree->topLevelItem(i);
        for (int j = 0; j < subject->childCount(); ++j) {
            if (!subject->isHidden() && !subject->child(j)->isHidden())
                return subject->child(j);
        }
    }
    return nullptr;
}

} // namespace

FrmPrgView::FrmPrgView(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , txtSearch(new QLineEdit)
    , SSTree1(new QTreeWidget)
    , lblNothing(new QLabel(tr("Nothing in the program is called so.")))
    , cmdOpen(new QPushButton(tr("&Open")))
{
    setWindowTitle(tr("Program View"));
    txtSearch->setObjectName(u"txtSearch"_s);
    txtSearch->setClearButtonEnabled(true);
    txtSearch->setPlaceholderText(tr("A word of what you want to do, such as birthday"));
    txtSearch->installEventFilter(this);
    auto* label = new QLabel(tr("&Find"));
    label->setBuddy(txtSearch);
    SSTree1->setObjectName(u"SSTree1"_s);
    SSTree1->setAccessibleName(tr("What the program can do"));
    SSTree1->setHeaderLabels({tr("Screen"), tr("What it is for"), tr("Key")});
    SSTree1->setUniformRowHeights(true);
    SSTree1->setTextElideMode(Qt::ElideRight);
    SSTree1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    SSTree1->header()->setStretchLastSection(false);
    SSTree1->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    SSTree1->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    SSTree1->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    lblNothing->setObjectName(u"lblNothing"_s);
    cmdOpen->setObjectName(u"cmdOpen"_s);
    cmdOpen->setToolTip(tr("Open what is chosen (Enter)"));
    widgets::setIcon(cmdOpen, u"launch");
    auto* close = new QPushButton(tr("C&lose"));
    close->setObjectName(u"CmdClose"_s);
    widgets::setIcon(close, u"exit");

    auto* top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(txtSearch, 1);
    auto* foot = new QHBoxLayout;
    foot->addWidget(lblNothing);
    foot->addStretch(1);
    foot->addWidget(cmdOpen);
    foot->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(8);
    layout->addLayout(top);
    layout->addWidget(SSTree1, 1);
    layout->addLayout(foot);
    setFocusProxy(txtSearch);

    connect(txtSearch, &QLineEdit::textChanged, this, &FrmPrgView::narrow);
    connect(txtSearch, &QLineEdit::returnPressed, this, [this] { choose(SSTree1->currentItem()); });
    connect(SSTree1, &QTreeWidget::itemActivated, this, &FrmPrgView::choose);
    connect(SSTree1, &QTreeWidget::currentItemChanged, this, &FrmPrgView::showChosen);
    connect(cmdOpen, &QPushButton::clicked, this, [this] { choose(SSTree1->currentItem()); });
    connect(close, &QPushButton::clicked, this, &Screen::closeRequested);
}

void FrmPrgView::load()
{
    fill();
}

// The edition or the country may have been changed.
void FrmPrgView::bookChanged()
{
    fill();
}

void FrmPrgView::fill()
{
    const QString chosen = toolOf(SSTree1->currentItem());
    SSTree1->clear();
    const auto canPerform = [this](const core::Action& action) { return context().frame.canPerform(action); };
    const ProgramUser user{shared().NationalMode, isBusinessEdition(context().data)};
    for (const ProgramSubject& subject : programSubjects(user, canPerform)) {
        auto* parent = new QTreeWidgetItem(SSTree1, {plain(subject.group->caption)});
        parent->setIcon(0, widgets::icon(subject.group->icon));
        for (const ProgramRow& row : subject.rows) {
            const QKeySequence key(row.tool->shortcut.toString());
            auto* item = new QTreeWidgetItem(parent,
                {plain(row.tool->caption), QCoreApplication::translate("shell", row.tool->toolTip),
                    key.toString(QKeySequence::NativeText)});
            item->setIcon(0, widgets::icon(row.tool->icon));
            item->setToolTip(1, item->text(1));
            item->setData(0, kTool, row.tool->id.toString());
            if (item->data(0, kTool) == chosen)
                SSTree1->setCurrentItem(item);
        }
    }
    SSTree1->expandAll();
    narrow();
}

// A subject is found by its own name, too, with all that belongs to it.
void FrmPrgView::narrow()
{
    const QString typed = txtSearch->text();
    int found = 0;
    for (int i = 0; i < SSTree1->topLevelItemCount(); ++i) {
        QTreeWidgetItem* subject = SSTree1->topLevelItem(i);
        int ofSubject = 0;
        for (int j = 0; j < subject->childCount(); ++j) {
            QTreeWidgetItem* item = subject->child(j);
            const QString texts = subject->text(0) + u'\n' + item->text(0) + u'\n' + item->text(1);
            item->setHidden(!holdsAllWords(typed, texts));
            ofSubject += item->isHidden() ? 0 : 1;
        }
        subject->setHidden(ofSubject == 0);
        found += ofSubject;
    }
    QTreeWidgetItem* current = SSTree1->currentItem();
    if (!current || current->isHidden() || (current->parent() && current->parent()->isHidden())
        || toolOf(current).isEmpty())
        SSTree1->setCurrentItem(firstInSight(SSTree1));
    lblNothing->setVisible(found == 0);
    setPosition(tr("%1 found").arg(found));
    showChosen();
}

void FrmPrgView::showChosen()
{
    const QTreeWidgetItem* current = SSTree1->currentItem();
    cmdOpen->setEnabled(!toolOf(current).isEmpty() && !current->isHidden());
}

void FrmPrgView::choose(QTreeWidgetItem* item)
{
    const QString id = toolOf(item);
    const core::Action* action = id.isEmpty() || item->isHidden() ? nullptr : core::toolAction(id);
    if (action)
        context().frame.perform(*action);
}

// From the search line the arrows walk through what was found, so that a hand stays where it types.
bool FrmPrgView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == txtSearch && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp) {
            QCoreApplication::sendEvent(SSTree1, event);
            return true;
        }
    }
    return Screen::eventFilter(watched, event);
}

} // namespace shell
