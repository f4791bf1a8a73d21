#include "jet/parser.h"

#include "jet/same_name.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr int kDeepest = 120;

bool isNeverName(Keyword word)
{
    return word >= Keyword::Select && word <= Keyword::False;
}

bool isNeverAlias(Keyword word)
{
    return (word >= Keyword::On && word <= Keyword::Set) || word == Keyword::Where || word == Keyword::Union
        || word == Keyword::Having;
}

bool isComparison(const Token& token)
{
    if (token.kind != Token::Kind::Symbol)
        return false;
    const QChar first = token.text.front();
    return first == u'=' || first == u'<' || first == u'>';
}

/// Stops the parse; caught in this file only. The grammar would drown in error checks without it.
struct SyntaxError {
    QString reason;
};

class Parser {
public:
    explicit Parser(const std::vector<Token>& tokens)
        : m_tokens(tokens)
    {
    }

    Statement statement()
    {
        Statement result;
        if (takeWord(Keyword::Update))
            result = update();
        else if (takeWord(Keyword::Delete))
            result = remove();
        else if (takeWord(Keyword::Insert))
            result = insert();
        else if (takeWord(Keyword::Drop))
            result = drop();
        else
            result.select = select();
        takeSymbol(u';');
        expectEnd();
        return result;
    }

    ExpressionPtr condition()
    {
        ExpressionPtr result = expression();
        expectEnd();
        return result;
    }

private:
    class Level {
    public:
        explicit Level(Parser& parser)
            : m_parser(parser)
        {
            if (++m_parser.m_level > kDeepest)
                throw SyntaxError{u"nested too deeply"_s};
        }
        ~Level() { --m_parser.m_level; }
        Q_DISABLE_COPY_MOVE(Level)

    private:
        Parser& m_parser;
    };

    // ---- statements

    Statement update()
    {
        Statement result;
        result.kind = Statement::Kind::Update;
        result.table.name = name();
        expectWord(Keyword::Set);
        do {
            Assignment assignment;
            assignment.column = name();
            if (takeSymbol(u'.'))
                assignment.column = name();
            expectSymbol(u'=');
            assignment.value = expression();
            result.assignments.push_back(std::move(assignment));
        } while (takeSymbol(u','));
        result.where = whereClause();
        return result;
    }

    Statement remove()
    {
        Statement result;
        result.kind = Statement::Kind::Delete;
        takeSymbol(u'*');
        expectWord(Keyword::From);
        result.table.name = name();
        result.where = whereClause();
        return result;
    }

    Statement insert()
    {
        Statement result;
        result.kind = Statement::Kind::Insert;
        expectWord(Keyword::Into);
        result.table.name = name();
        if (takeSymbol(u'(')) {
            do
                result.columns.push_back(name());
            while (takeSymbol(u','));
            expectSymbol(u')');
        }
        expectWord(Keyword::Values);
        expectSymbol(u'(');
        do
            result.values.push_back(expression());
        while (takeSymbol(u','));
        expectSymbol(u')');
        if (!result.columns.empty() && result.columns.size() != result.values.size())
            throw SyntaxError{u"columns and values differ in number"_s};
        return result;
    }

    Statement drop()
    {
        Statement result;
        result.kind = Statement::Kind::Drop;
        expectWord(Keyword::Table);
        result.table.name = name();
        return result;
    }

    Select select()
    {
        const Level level(*this);
        Select result;
        result.arms.push_back(arm(result));
        while (takeWord(Keyword::Union)) {
            const bool keepsDoubles = takeWord(Keyword::All);
            result.arms.push_back(arm(result));
            result.arms.back().keepsDoubles = keepsDoubles;
        }
        if (result.arms.size() > 1 && !result.into.isEmpty())
            throw SyntaxError{u"a union makes no table"_s};
        return result;
    }

    SelectArm arm(Select& whole)
    {
        const Level level(*this);
        if (takeSymbol(u'(')) {
            SelectArm result = arm(whole);
            expectSymbol(u')');
            result.inBrackets = true;
            if (isOrderBy())
                result.orderBy = orderBy();
            return result;
        }
        expectWord(Keyword::Select);
        SelectArm result;
        result.distinct = takeWord(Keyword::Distinct);
        if (!result.distinct)
            takeWord(Keyword::All);
        constexpr size_t kUsualItems = 16;
        result.items.reserve(kUsualItems);
        do
            result.items.push_back(selectItem());
        while (takeSymbol(u','));
        if (takeWord(Keyword::Into))
            into(whole);
        if (takeWord(Keyword::From)) {
            do
                result.tables.push_back(tableName());
            while (takeSymbol(u','));
        }
        result.where = whereClause();
        if (isPair(Keyword::Group, Keyword::By)) {
            m_at += 2;
            do
                result.groupBy.push_back(expression());
            while (takeSymbol(u','));
        }
        if (takeWord(Keyword::Having))
            result.having = expression();
        if (isOrderBy())
            result.orderBy = orderBy();
        return result;
    }

    void into(Select& whole)
    {
        whole.into = name();
        if (takeSymbol(u'.')) {
            whole.intoOtherFile = true;
            whole.into = name();
        }
    }

    SelectItem selectItem()
    {
        SelectItem item;
        if (takeSymbol(u'*')) {
            item.star = true;
            return item;
        }
        if (isName(peek()) && peek(1).isSymbol(u'.') && peek(2).isSymbol(u'*')) {
            item.star = true;
            item.starTable = peek().text;
            m_at += 3;
            return item;
        }
        item.expression = expression();
        if (takeWord(Keyword::As))
            item.alias = name();
        return item;
    }

    TableName tableName()
    {
        TableName table;
        table.name = name();
        if (takeWord(Keyword::As))
            table.alias = name();
        else if (isName(peek()) && !isClauseWord())
            table.alias = name();
        return table;
    }

    bool isClauseWord() const
    {
        return peek().kind == Token::Kind::Word
            && (isNeverAlias(peek().keyword) || isOrderBy() || isPair(Keyword::Group, Keyword::By));
    }

    ExpressionPtr whereClause() { return takeWord(Keyword::Where) ? expression() : nullptr; }

    bool isOrderBy() const { return isPair(Keyword::Order, Keyword::By); }

    std::vector<OrderTerm> orderBy()
    {
        m_at += 2;
        std::vector<OrderTerm> terms;
        do {
            OrderTerm term;
            term.expression = expression();
            term.descending = takeWord(Keyword::Desc);
            if (!term.descending)
                takeWord(Keyword::Asc);
            terms.push_back(std::move(term));
        } while (takeSymbol(u','));
        return terms;
    }

    // ---- expressions, from loose to tight

    ExpressionPtr expression()
    {
        const Level level(*this);
        return chain(Expression::Kind::Or, Keyword::Or,
            [this] { return chain(Expression::Kind::And, Keyword::And, [this] { return negation(); }); });
    }

    template <class Next> ExpressionPtr chain(Expression::Kind kind, Keyword word, Next next)
    {
        ExpressionPtr first = next();
        if (!peek().isWord(word))
            return first;
        auto whole = make(kind);
        adopt(*whole, std::move(first));
        while (takeWord(word))
            adopt(*whole, next());
        return whole;
    }

    ExpressionPtr negation()
    {
        if (!peek().isWord(Keyword::Not))
            return comparison();
        const Level level(*this);
        ++m_at;
        auto result = make(Expression::Kind::Not);
        adopt(*result, negation());
        return result;
    }

    // A comparison may itself be compared or tested: region='West' is not null.
    ExpressionPtr comparison()
    {
        ExpressionPtr left = joined();
        for (;;) {
            if (isComparison(peek())) {
                const QStringView op = take().text;
                left = binary(Expression::Kind::Compare, op, std::move(left), joined());
                continue;
            }
            if (takeWord(Keyword::Is)) {
                auto test = make(Expression::Kind::IsNull);
                test->negated = takeWord(Keyword::Not);
                expectWord(Keyword::Null);
                adopt(*test, std::move(left));
                left = std::move(test);
                continue;
            }
            const bool negated = peek().isWord(Keyword::Not)
                && (peek(1).isWord(Keyword::Like) || peek(1).isWord(Keyword::In)
                    || peek(1).isWord(Keyword::Between));
            if (negated)
                ++m_at;
            if (takeWord(Keyword::Like))
                left = binary(Expression::Kind::Like, {}, std::move(left), joined());
            else if (takeWord(Keyword::Between))
                left = between(std::move(left));
            else if (takeWord(Keyword::In))
                left = in(std::move(left));
            else
                return left;
            left->negated = negated;
        }
    }

    ExpressionPtr between(ExpressionPtr value)
    {
        auto result = binary(Expression::Kind::Between, {}, std::move(value), joined());
        expectWord(Keyword::And);
        adopt(*result, joined());
        return result;
    }

    ExpressionPtr in(ExpressionPtr value)
    {
        expectSymbol(u'(');
        auto result = make(Expression::Kind::In);
        adopt(*result, std::move(value));
        if (peek().isWord(Keyword::Select)) {
            result->kind = Expression::Kind::InSelect;
            result->select = std::make_unique<Select>(select());
        } else {
            do
                adopt(*result, expression());
            while (takeSymbol(u','));
        }
        expectSymbol(u')');
        return result;
    }

    /// How tightly an operator between two values binds; 0 for what is none.
    static int tightness(const Token& token)
    {
        if (token.isWord(Keyword::Mod))
            return 3;
        if (token.kind != Token::Kind::Symbol || token.text.size() != 1)
            return 0;
        switch (token.text.front().unicode()) {
        case u'&': return 1;
        case u'+':
        case u'-': return 2;
        case u'\\': return 4;
        case u'*':
        case u'/': return 5;
        default: return 0;
        }
    }

    ExpressionPtr joined(int loosest = 1)
    {
        ExpressionPtr left = signedPower();
        for (int now = tightness(peek()); now >= loosest; now = tightness(peek())) {
            const QStringView op = now == 3 ? QStringView(u"mod") : peek().text;
            ++m_at;
            left = binary(Expression::Kind::Arithmetic, op, std::move(left), joined(now + 1));
        }
        return left;
    }

    ExpressionPtr signedPower()
    {
        const Level level(*this);
        if (takeSymbol(u'+'))
            return signedPower();
        if (takeSymbol(u'-')) {
            auto result = make(Expression::Kind::Negative);
            adopt(*result, signedPower());
            return result;
        }
        ExpressionPtr left = operand();
        while (takeSymbol(u'^'))
            left = binary(Expression::Kind::Arithmetic, u"^", std::move(left), operand());
        return left;
    }

    ExpressionPtr operand()
    {
        const Level level(*this);
        const Token& token = peek();
        switch (token.kind) {
        case Token::Kind::Text:
        case Token::Kind::Date:
        case Token::Kind::Number: return value();
        case Token::Kind::Symbol: return inBrackets();
        case Token::Kind::End: throw SyntaxError{u"the statement ends too early"_s};
        default: break;
        }
        if (token.isWord(Keyword::Null) || token.isWord(Keyword::True) || token.isWord(Keyword::False)) {
            const auto kind = token.keyword == Keyword::Null ? Expression::Kind::Null
                : token.keyword == Keyword::True             ? Expression::Kind::True
                                                             : Expression::Kind::False;
            ++m_at;
            return make(kind);
        }
        if (token.isWord(Keyword::Exists) && peek(1).isSymbol(u'(')) {
            m_at += 2;
            auto result = make(Expression::Kind::Exists);
            result->select = std::make_unique<Select>(select());
            expectSymbol(u')');
            return result;
        }
        if (token.kind == Token::Kind::Word && peek(1).isSymbol(u'('))
            return call();
        if (token.kind == Token::Kind::Word
            && (isNeverName(token.keyword) || isOrderBy() || isPair(Keyword::Group, Keyword::By)))
            throw SyntaxError{u"an operand is missing before "_s + token.text.toString()};
        auto column = make(Expression::Kind::Column);
        column->name = name();
        if (takeSymbol(u'.')) {
            column->table = column->name;
            column->name = name();
        }
        return column;
    }

    ExpressionPtr value()
    {
        const Token& token = take();
        auto result = make(token.literal < 0 ? Expression::Kind::Number : Expression::Kind::Literal);
        result->name = token.text;
        result->literal = token.literal;
        result->literalKind = int(token.kind == Token::Kind::Text ? Literal::Kind::Text
                : token.kind == Token::Kind::Number               ? Literal::Kind::Number
                                                                  : Literal::Kind::Date);
        return result;
    }

    ExpressionPtr inBrackets()
    {
        expectSymbol(u'(');
        ExpressionPtr result;
        if (peek().isWord(Keyword::Select)) {
            result = make(Expression::Kind::Subselect);
            result->select = std::make_unique<Select>(select());
        } else {
            result = expression();
        }
        expectSymbol(u')');
        return result;
    }

    ExpressionPtr call()
    {
        auto result = make(Expression::Kind::Call);
        result->name = take().text;
        expectSymbol(u'(');
        if (sameName(result->name, u"count") && takeSymbol(u'*'))
            result->kind = Expression::Kind::CountAll;
        else if (!peek().isSymbol(u')')) {
            do
                adopt(*result, expression());
            while (takeSymbol(u','));
        }
        expectSymbol(u')');
        return result;
    }

    // ---- building

    static ExpressionPtr make(Expression::Kind kind)
    {
        auto result = std::make_unique<Expression>();
        result->kind = kind;
        return result;
    }

    static void adopt(Expression& parent, ExpressionPtr child)
    {
        parent.depth = std::max(parent.depth, child->depth + 1);
        if (parent.depth > 4 * kDeepest)
            throw SyntaxError{u"nested too deeply"_s};
        parent.parts.push_back(std::move(child));
    }

    static ExpressionPtr binary(
        Expression::Kind kind, QStringView op, ExpressionPtr left, ExpressionPtr right)
    {
        auto result = make(kind);
        result->op = op;
        result->parts.reserve(2);
        adopt(*result, std::move(left));
        adopt(*result, std::move(right));
        return result;
    }

    // ---- tokens

    const Token& peek(size_t ahead = 0) const
    {
        return m_tokens[std::min(m_at + ahead, m_tokens.size() - 1)];
    }
    const Token& take()
    {
        const Token& token = peek();
        if (m_at < m_tokens.size())
            ++m_at;
        return token;
    }
    bool isPair(Keyword first, Keyword second) const
    {
        return peek().isWord(first) && peek(1).isWord(second);
    }
    static bool isName(const Token& token)
    {
        return token.kind == Token::Kind::Name || token.kind == Token::Kind::Word;
    }
    bool takeWord(Keyword word) { return peek().isWord(word) && ++m_at; }
    bool takeSymbol(char16_t symbol) { return peek().isSymbol(symbol) && ++m_at; }
    void expectWord(Keyword word)
    {
        if (!takeWord(word))
            throw SyntaxError{textOf(word).toString() + u" is missing before "_s + shown()};
    }
    void expectSymbol(char16_t symbol)
    {
        if (!takeSymbol(symbol))
            throw SyntaxError{QChar(symbol) + u" is missing before "_s + shown()};
    }
    void expectEnd()
    {
        if (peek().kind != Token::Kind::End)
            throw SyntaxError{u"something stands behind the statement: "_s + shown()};
    }
    QString shown() const
    {
        return peek().kind == Token::Kind::End ? u"the end"_s : peek().text.left(40).toString();
    }

    // Every table has a hidden key in the file; the dialect does not know it.
    QStringView name()
    {
        if (!isName(peek()))
            throw SyntaxError{u"a name is missing before "_s + shown()};
        if (peek().keyword == Keyword::HiddenKey)
            throw SyntaxError{u"no such name: "_s + peek().text.toString()};
        return take().text;
    }

    const std::vector<Token>& m_tokens;
    size_t m_at = 0;
    int m_level = 0;
};

} // namespace

std::optional<Statement> parseStatement(const std::vector<Token>& tokens, QString* error)
{
    try {
        return Parser(tokens).statement();
    } catch (const SyntaxError& failure) {
        *error = failure.reason;
        return {};
    }
}

ExpressionPtr parseCondition(const std::vector<Token>& tokens, QString* error)
{
    try {
        return Parser(tokens).condition();
    } catch (const SyntaxError& failure) {
        *error = failure.reason;
        return {};
    }
}

} // namespace jet
