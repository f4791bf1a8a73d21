#include "widgets/key_filter.h"

#include <QComboBox>
#include <QLineEdit>
#include <QValidator>

#include <algorithm>

namespace widgets {

namespace {

constexpr char16_t Backspace = 8;

bool passes(KeyFilter filter, QChar key, QStringView text)
{
    switch (filter) {
    case KeyFilter::None: return true;
    case KeyFilter::NoLetters: return IsNotLetter(key);
    case KeyFilter::Digits: return key.unicode() != Backspace && DigitsOnly(key, text);
    case KeyFilter::NoApostrophe: return key != u'\'';
    }
    return true;
}

/// A validator sees every change, however it came about. It finds what was added by comparing with the text
/// before, and a text from the program by its empty undo history.
class FilterValidator final : public QValidator {
public:
    FilterValidator(KeyFilter filter, QLineEdit* edit)
        : QValidator(edit)
        , m_filter(filter)
        , m_edit(edit)
        , m_shown(edit->text())
    {
        connect(edit, &QLineEdit::textChanged, this, [this](const QString& text) { m_shown = text; });
    }

    State validate(QString& text, int& position) const override
    {
        if (!m_edit->isUndoAvailable())
            return Acceptable;
        // What stands behind the cursor was there before; the rest of the old text stands in front of the new
        // piece.
        const auto shorter = std::min(text.size(), m_shown.size());
        const auto behindCursor = std::min(shorter, text.size() - position);
        qsizetype back = 0;
        while (back < behindCursor && text[text.size() - 1 - back] == m_shown[m_shown.size() - 1 - back])
            ++back;
        qsizetype front = 0;
        while (front < shorter - back && text[front] == m_shown[front])
            ++front;

        const QStringView before = QStringView(text).first(front);
        const QStringView after = QStringView(text).last(back);
        const QStringView piece = QStringView(text).sliced(front, text.size() - front - back);
        const QString kept = filtered(m_filter, piece, before, after);
        if (kept.size() == piece.size())
            return Acceptable;
        if (kept.isEmpty())
            return Invalid; // undone as a whole, so a refused key does not delete a selection
        text = before.toString() + kept + after.toString();
        position = static_cast<int>(front + kept.size());
        return Acceptable;
    }

private:
    KeyFilter m_filter;
    QLineEdit* m_edit;
    QString m_shown;
};

} // namespace

bool IsNotLetter(QChar key)
{
    return !((key >= u'a' && key <= u'z') || (key >= u'A' && key <= u'Z'));
}

bool DigitsOnly(QChar key, QStringView text)
{
    if (key.unicode() == Backspace)
        return true;
    if (key == u'.')
        return !text.contains(u'.');
    return key >= u'0' && key <= u'9';
}

QString filtered(KeyFilter filter, QStringView piece, QStringView before, QStringView after)
{
    QString kept;
    for (const QChar key : piece) {
        if (passes(filter, key, before.toString() + kept + after.toString()))
            kept += key;
    }
    return kept;
}

void setKeyFilter(QLineEdit* edit, KeyFilter filter)
{
    const QValidator* old = edit->validator();
    edit->setValidator(filter == KeyFilter::None ? nullptr : new FilterValidator(filter, edit));
    delete old;
}

void setKeyFilter(QComboBox* combo, KeyFilter filter)
{
    Q_ASSERT(combo->isEditable());
    setKeyFilter(combo->lineEdit(), filter);
}

} // namespace widgets
