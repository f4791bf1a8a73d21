#include "jet/lexer.h"

#include "jet/date_text.h"
#include "jet/text_builder.h"

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr qsizetype kLongestStatement = 32 * 1024 * 1024;

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}
bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}
bool startsWord(QChar c)
{
    return c.isLetter() || c == u'_';
}
bool continuesWord(QChar c)
{
    return startsWord(c) || c.isDigit() || c == u'$';
}

class Lexer {
public:
    explicit Lexer(QStringView sql)
        : m_sql(sql)
    {
        m_shape.reserve(2 * sql.size() + 8);
        m_result.tokens.reserve(size_t(sql.size() / 4 + 8));
    }

    Lexed run()
    {
        if (m_sql.size() > kLongestStatement)
            fail(u"the statement is too long"_s);
        while (m_result.error.isEmpty() && m_at < m_sql.size())
            next();
        m_result.tokens.push_back({});
        m_result.shape = m_shape.text();
        return std::move(m_result);
    }

private:
    void next()
    {
        const QChar c = m_sql[m_at];
        if (isBlank(c))
            ++m_at;
        else if (startsWord(c))
            word();
        else if (isDigit(c) || (c == u'.' && m_at + 1 < m_sql.size() && isDigit(m_sql[m_at + 1])))
            number();
        else if (c == u'[')
            bracketedName();
        else if (c == u'\'' || c == u'"')
            quotedText(c);
        else if (c == u'#')
            date();
        else
            symbol();
    }

    void word()
    {
        const qsizetype from = m_at;
        while (m_at < m_sql.size() && continuesWord(m_sql[m_at]))
            ++m_at;
        const QStringView text = m_sql.mid(from, m_at - from);
        mark(text);
        add(Token::Kind::Word, text, keywordOf(text));
    }

    // 06 is six, and 022 in trim(022) counts two digits.
    void number()
    {
        const qsizetype from = m_at;
        while (m_at < m_sql.size() && isDigit(m_sql[m_at]))
            ++m_at;
        bool whole = true;
        if (m_at < m_sql.size() && m_sql[m_at] == u'.') {
            whole = false;
            ++m_at;
            while (m_at < m_sql.size() && isDigit(m_sql[m_at]))
                ++m_at;
        }
        QString text = m_sql.mid(from, m_at - from).toString();
        if (whole && text.size() <= 18)
            text = QString::number(text.toLongLong());
        else
            text = QString::number(text.toDouble(), 'g', 15);
        if (comparesWithName()) {
            addLiteral(Literal::Kind::Number, Token::Kind::Number, text);
        } else {
            mark(text);
            m_result.numbers.append(text);
            add(Token::Kind::Number, m_result.numbers.constLast());
        }
    }

    // A number is bound only where it is compared with a plain name (id=5); elsewhere it may carry structure,
    // and written out it lets the planner use an index that was made for just that condition.
    bool comparesWithName() const
    {
        const auto& tokens = m_result.tokens;
        if (tokens.size() < 2)
            return false;
        const Token& op = tokens[tokens.size() - 1];
        const Token& name = tokens[tokens.size() - 2];
        return op.kind == Token::Kind::Symbol
            && (op.text == u"=" || op.text == u"<>" || op.text == u"<" || op.text == u">" || op.text == u"<="
                || op.text == u">=")
            && (name.kind == Token::Kind::Word || name.kind == Token::Kind::Name);
    }

    void bracketedName()
    {
        const qsizetype end = m_sql.indexOf(u']', m_at);
        if (end < 0)
            return fail(u"a name in brackets does not end"_s);
        const QStringView name = m_sql.mid(m_at + 1, end - m_at - 1);
        if (name.trimmed().isEmpty() || name.contains(u'[') || name.contains(QChar(0)))
            return fail(u"a name in brackets is no name"_s);
        m_at = end + 1;
        // With its closing bracket: a name may hold anything else, even what looks like the rest of a
        // statement.
        m_shape += u'[';
        m_shape += name;
        m_shape += u']';
        add(Token::Kind::Name, name.trimmed(), keywordOf(name.trimmed()));
    }

    void quotedText(QChar quote)
    {
        QString text;
        qsizetype at = m_at + 1;
        for (;;) {
            const qsizetype end = m_sql.indexOf(quote, at);
            if (end < 0)
                return fail(u"a text does not end"_s);
            text += m_sql.mid(at, end - at);
            at = end + 1;
            if (at >= m_sql.size() || m_sql[at] != quote)
                break;
            text += quote;
            ++at;
        }
        m_at = at;
        addLiteral(Literal::Kind::Text, Token::Kind::Text, text);
    }

    void date()
    {
        const qsizetype end = m_sql.indexOf(u'#', m_at + 1);
        if (end < 0)
            return fail(u"a date does not end"_s);
        const auto iso = parseDateText(m_sql.mid(m_at + 1, end - m_at - 1));
        if (!iso)
            return fail(
                u"no such date: "_s + m_sql.mid(m_at + 1, qMin<qsizetype>(end - m_at - 1, 40)).toString());
        m_at = end + 1;
        addLiteral(Literal::Kind::Date, Token::Kind::Date, *iso);
    }

    void symbol()
    {
        const QChar c = m_sql[m_at];
        const QChar second = m_at + 1 < m_sql.size() ? m_sql[m_at + 1] : QChar();
        if ((c == u'<' && (second == u'=' || second == u'>')) || (c == u'>' && second == u'=')) {
            const QStringView two = m_sql.mid(m_at, 2);
            m_at += 2;
            mark(two);
            return add(Token::Kind::Symbol, two);
        }
        static constexpr std::u16string_view kKnown = u",().=<>*+-/\\^&;";
        if (kKnown.find(c.unicode()) == kKnown.npos)
            return fail(u"a character that the language does not know: "_s + c);
        // The comment mark of other dialects; a doubled sign has no use here.
        if (c == u'-' && second == u'-')
            return fail(u"-- is no operator"_s);
        const QStringView text = m_sql.mid(m_at, 1);
        ++m_at;
        mark(text);
        add(Token::Kind::Symbol, text);
    }

    void mark(QStringView text)
    {
        m_shape += text;
        m_shape += u' ';
    }

    void add(Token::Kind kind, QStringView text, Keyword keyword = Keyword::None)
    {
        m_result.tokens.push_back({kind, keyword, -1, text});
    }

    void addLiteral(Literal::Kind kind, Token::Kind tokenKind, const QString& text)
    {
        // Control characters can stand in no other place of a shape. Equal neighbours have a mark of their
        // own, since a chain of terms with one pattern is translated into one call.
        const bool repeated = !m_result.literals.empty() && m_result.literals.back().kind == kind
            && m_result.literals.back().text == text;
        m_shape += char16_t((1 + int(kind) + (repeated ? 3 : 0)));
        m_result.literals.push_back({kind, text});
        m_result.tokens.push_back(
            {tokenKind, Keyword::None, int(m_result.literals.size()) - 1, m_result.literals.back().text});
    }

    void fail(const QString& error)
    {
        m_result.error = error;
        m_at = m_sql.size();
    }

    QStringView m_sql;
    qsizetype m_at = 0;
    TextBuilder m_shape;
    Lexed m_result;
};

} // namespace

Lexed lex(QStringView sql)
{
    return Lexer(sql).run();
}

} // namespace jet
