#include "views/full_view/labelled_lines.h"

#include "widgets/theme.h"

#include <QEvent>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kBesideLabel = 8;
constexpr int kFrame = 12;
constexpr int kDigits = 10; ///< of a number that is not to wrap

} // namespace

LabelledLines::LabelledLines(const QStringList& labels, QWidget* parent)
    : QPlainTextEdit(parent)
    , m_labels(labels)
    , m_margin(new QWidget(this))
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    const int height = int(labels.size()) * fontMetrics().lineSpacing() + kFrame;
    setMinimumHeight(height);
    setMaximumHeight(2 * height);
    m_margin->installEventFilter(this);
    connect(this, &QPlainTextEdit::updateRequest, m_margin, qOverload<>(&QWidget::update));
    showLabels(true);
}

void LabelledLines::showLabels(bool shown)
{
    m_labelled = shown;
    setAccessibleDescription(shown ? m_labels.join(u"; "_s) : QString());
    settleMargin();
}

QRect LabelledLines::labelRect(int line) const
{
    const QTextBlock block = document()->findBlockByNumber(line);
    if (!m_labelled || line >= m_labels.size() || !block.isValid())
        return {};
    const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
    return {0, qRound(place.top()) + viewport()->y() - m_margin->y(), m_margin->width() - kBesideLabel,
        fontMetrics().lineSpacing()};
}

void LabelledLines::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    settleMargin();
}

void LabelledLines::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        settleMargin();
}

bool LabelledLines::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_margin && event->type() == QEvent::Paint)
        paintLabels();
    return QPlainTextEdit::eventFilter(watched, event);
}

void LabelledLines::settleMargin()
{
    int widest = 0;
    for (const QString& label : std::as_const(m_labels))
        widest = std::max(widest, fontMetrics().horizontalAdvance(label));
    const int width = m_labelled ? widest + 2 * kBesideLabel : 0;
    if (viewportMargins().left() != width)
        setViewportMargins(width, 0, 0, 0);
    setMinimumWidth(width + fontMetrics().horizontalAdvance(QString(kDigits, u'0')) + 2 * kFrame);
    m_margin->setVisible(m_labelled);
    const QRect inner = contentsRect();
    m_margin->setGeometry(inner.left(), inner.top(), width, inner.height());
}

void LabelledLines::paintLabels()
{
    QPainter painter(m_margin);
    painter.setFont(font());
    painter.setPen(widgets::quietTextColor());
    for (int line = 0; line < m_labels.size(); ++line)
        painter.drawText(labelRect(line), Qt::AlignRight | Qt::AlignVCenter, m_labels[line]);
}

} // namespace views
