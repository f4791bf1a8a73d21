#include "core/shell/Form3.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace shell {

Form3::Form3(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(u"Form3"_s);
    setWindowTitle(tr("Orvane"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    auto* label = new QLabel(tr("Please Wait, due to first time system making resources"), this);
    label->setObjectName(u"Label1"_s);
    layout->addWidget(label);
    adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move((screen->size().width() - width()) / 2, (screen->size().height() - height()) / 2);
}

} // namespace shell
