#include "widgets/found_strip.h"

#include "widgets/fields.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace widgets {

FoundStrip::FoundStrip(QWidget* parent)
    : QWidget(parent)
    , lblFound(new QLabel)
{
    lblFound->setObjectName(u"lblFound"_s);
    lblFound->setTextFormat(Qt::PlainText);
    lblFound->setWordWrap(true);
    lblFound->setMinimumWidth(1);
    auto* clear = new QToolButton;
    clear->setObjectName(u"CmdClearFound"_s);
    clear->setText(tr("Clear"));
    clear->setToolTip(tr("Show all contacts again"));
    connect(clear, &QToolButton::clicked, this, &FoundStrip::clearWanted);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->addWidget(lblFound, 1);
    layout->addWidget(clear, 0, Qt::AlignTop);
    hide();
}

void FoundStrip::tell(const QString& foundBy, int found, int all)
{
    setTextOf(lblFound, tr("%1 - %2 of %3").arg(foundBy, QString::number(found), QString::number(all)));
    show();
}

} // namespace widgets
