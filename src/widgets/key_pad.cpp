#include "widgets/key_pad.h"

#include <QGridLayout>
#include <QPushButton>

namespace widgets {

using namespace Qt::StringLiterals;

KeyPad::KeyPad(const QString& keyName, QWidget* parent)
    : QWidget(parent)
{
    constexpr QStringView Captions = u"123456789*0#";
    constexpr int Columns = 3;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    for (int i = 0; i < Captions.size(); ++i) {
        const QString caption = Captions[i];
        auto* key = new QPushButton(caption, this);
        key->setObjectName(u"%1_%2"_s.arg(keyName).arg(i + 1));
        key->setFocusPolicy(Qt::NoFocus);
        key->setAutoDefault(false);
        key->setFixedSize(40, 32);
        connect(key, &QPushButton::clicked, this, [this, caption] { Q_EMIT keyPressed(caption); });
        grid->addWidget(key, i / Columns, i % Columns);
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

} // namespace widgets
