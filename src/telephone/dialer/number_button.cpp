#include "telephone/dialer/number_button.h"

#include "widgets/long_text.h"

#include <QStyleOptionButton>
#include <QStylePainter>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr int kMargin = 8;
constexpr int kLeastCharacters = 9;

} // namespace

NumberButton::NumberButton(const QString& name, const QString& blank, QWidget* parent)
    : QPushButton(parent)
    , m_blank(blank)
{
    setObjectName(name);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void NumberButton::setValue(const QString& value)
{
    m_value = value;
    // For those who have it read to them; what is painted is the value itself.
    setText(QString(value).replace(u'&', u"&&"_s));
    setToolTip(widgets::tipOf(value));
    update();
}

QSize NumberButton::sizeHint() const
{
    return minimumSizeHint();
}

QSize NumberButton::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * kLeastCharacters + 2 * kMargin, metrics.height() + kMargin};
}

void NumberButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    const QRect room = rect().adjusted(kMargin, 0, -kMargin, 0);
    const bool isBlank = m_value.isEmpty() || m_value == m_blank;
    painter.setPen(isEnabled() && !isBlank ? palette().color(QPalette::ButtonText)
                                           : palette().color(QPalette::PlaceholderText));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(
            m_value.isEmpty() ? m_blank : m_value.simplified(), Qt::ElideRight, room.width()));
}

} // namespace telephone
