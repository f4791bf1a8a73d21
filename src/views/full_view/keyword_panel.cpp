#include "views/full_view/keyword_panel.h"

#include "widgets/fields.h"
#include "widgets/form_kit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace views {

KeywordPanel::KeywordPanel(QWidget* parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    widgets::FormKit form(this);
    form.line(u"txtkeyword"_s, tr("&Keyword"), {}, widgets::KeyFilter::NoApostrophe);
    form.buttonRow()
        .button(u"CmdSearch"_s, tr("&Search"), u"search", tr("Look for the word in all fields"))
        .button(u"CmdKewordclose"_s, tr("Close"), u"cancel", tr("Close the keyword search"));
    txtkeyword = widgets::child<QLineEdit>(this, u"txtkeyword"_s);
    const auto search = [this] { Q_EMIT searched(txtkeyword->text()); };
    connect(widgets::child<QPushButton>(this, u"CmdSearch"_s), &QPushButton::clicked, this, search);
    connect(txtkeyword, &QLineEdit::returnPressed, this, search);
    connect(
        widgets::child<QPushButton>(this, u"CmdKewordclose"_s), &QPushButton::clicked, this, &QWidget::hide);
}

void KeywordPanel::open()
{
    show();
    txtkeyword->setFocus();
    txtkeyword->selectAll();
}

void KeywordPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        QFrame::keyPressEvent(event);
}

} // namespace views
