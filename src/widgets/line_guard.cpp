#include "widgets/line_guard.h"

#include "widgets/tool_tip_box.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QRegularExpression>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

/// Watches one line, and the combo that it belongs to, which gets the keys in its stead.
class LineGuard final : public QObject {
    Q_DECLARE_TR_FUNCTIONS(widgets::LineGuard)

public:
    explicit LineGuard(QLineEdit* line)
        : QObject(line)
        , m_line(line)
    {
        setObjectName(u"lineGuard"_s);
        line->installEventFilter(this);
        if (auto* combo = qobject_cast<QComboBox*>(line->parentWidget()))
            combo->installEventFilter(this);
        connect(line, &QLineEdit::inputRejected, this, &LineGuard::tellWhenFull);
    }

    static LineGuard* of(const QLineEdit* line)
    {
        return static_cast<LineGuard*>(line->findChild<QObject*>(u"lineGuard"_s, Qt::FindDirectChildrenOnly));
    }

    void setNext(QLineEdit* next) { m_next = next; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Only at input: the box round the line hears of other things also while the line is being deleted.
        const auto mayTake = [this] { return !m_line->isReadOnly() && m_line->isEnabled(); };
        switch (event->type()) {
        case QEvent::KeyPress:
            return mayTake() && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste)
                && spread(clipboard(QClipboard::Clipboard));
        case QEvent::MouseButtonRelease: return mayTake() && pasteSelection(static_cast<QMouseEvent*>(event));
        case QEvent::Drop: return mayTake() && drop(static_cast<QDropEvent*>(event));
        case QEvent::ContextMenu:
            return watched == m_line && mayTake() && openMenu(static_cast<QContextMenuEvent*>(event));
        default: return QObject::eventFilter(watched, event);
        }
    }

private:
    static QString clipboard(QClipboard::Mode mode) { return QApplication::clipboard()->text(mode); }

    /// Puts in a text of several lines; false when it is of one, which needs no care.
    bool spread(const QString& text)
    {
        static const QRegularExpression lineEnd(u"[\\n\\r\\x{2028}\\x{2029}\\v\\f]+"_s);
        if (!text.contains(lineEnd))
            return false;
        QStringList lines;
        for (const QString& line : text.split(lineEnd)) {
            if (!line.trimmed().isEmpty())
                lines += line.simplified();
        }
        QLineEdit* line = m_line;
        while (lines.size() > 1) {
            QLineEdit* next = of(line)->m_next;
            if (!next || next->isReadOnly() || !next->isEnabled() || !next->text().trimmed().isEmpty())
                break;
            line->insert(lines.takeFirst());
            line = next;
        }
        line->insert(lines.join(u' '));
        return true;
    }

    bool pasteSelection(const QMouseEvent* event)
    {
        if (event->button() != Qt::MiddleButton || !QApplication::clipboard()->supportsSelection())
            return false;
        m_line->deselect();
        m_line->setCursorPosition(m_line->cursorPositionAt(event->position().toPoint()));
        return spread(clipboard(QClipboard::Selection));
    }

    bool drop(QDropEvent* event)
    {
        if (event->source() == m_line)
            return false; // moves within the line
        m_line->setCursorPosition(m_line->cursorPositionAt(event->position().toPoint()));
        if (!spread(event->mimeData()->text()))
            return false;
        event->acceptProposedAction();
        return true;
    }

    bool openMenu(const QContextMenuEvent* event)
    {
        QMenu* menu = m_line->createStandardContextMenu();
        if (!menu)
            return false;
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (QAction* paste : menu->actions()) {
            if (!paste->text().startsWith(QLineEdit::tr("&Paste")))
                continue;
            paste->disconnect(m_line);
            connect(paste, &QAction::triggered, this, [this] {
                if (!spread(clipboard(QClipboard::Clipboard)))
                    m_line->paste();
            });
        }
        menu->popup(event->globalPos());
        return true;
    }

    void tellWhenFull()
    {
        if (m_line->text().size() < m_line->maxLength())
            return;
        auto* combo = qobject_cast<QComboBox*>(m_line->parentWidget());
        showHelpBeside(combo ? static_cast<QWidget*>(combo) : m_line,
            tr("Only %n characters fit in here. The rest was left out.", nullptr, m_line->maxLength()));
    }

    QLineEdit* m_line;
    QPointer<QLineEdit> m_next;
};

} // namespace

void guardLine(QLineEdit* line)
{
    if (!LineGuard::of(line))
        new LineGuard(line);
}

void continueIn(QLineEdit* line, QLineEdit* next)
{
    guardLine(line);
    guardLine(next);
    LineGuard::of(line)->setNext(next);
}

} // namespace widgets
