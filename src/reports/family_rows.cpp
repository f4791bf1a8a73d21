#include "reports/family_rows.h"

#include <QHash>
#include <QSet>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

class FamilyWalk {
public:
    explicit FamilyWalk(const jet::Recordset& members)
        : m_members(members)
        , m_id(members.columnIndex(u"id"))
    {
        const int parent = members.columnIndex(u"gen_id");
        QSet<QString> ids;
        for (int row = 0; row < members.count(); ++row)
            ids.insert(members.textAt(row, m_id));
        for (int row = 0; row < members.count(); ++row) {
            const QString above = members.textAt(row, parent);
            m_children[ids.contains(above) ? above : QString()] << row;
        }
    }

    QList<QStringList> rows()
    {
        walk({});
        // Who is a forefather of himself hangs on no root.
        for (int row = 0; row < m_members.count(); ++row) {
            if (!m_seen.contains(row))
                add(row, 0);
        }
        return m_rows;
    }

private:
    struct Step {
        int row;
        int depth;
    };

    void walk(const QString& root)
    {
        QList<Step> waiting;
        const auto push = [&](const QString& parent, int depth) {
            const QList<int> children = m_children.value(parent);
            for (auto child = children.crbegin(); child != children.crend(); ++child)
                waiting << Step{*child, depth};
        };
        push(root, 0);
        while (!waiting.isEmpty()) {
            const Step step = waiting.takeLast();
            if (m_seen.contains(step.row))
                continue;
            add(step.row, step.depth);
            push(m_members.textAt(step.row, m_id), step.depth + 1);
        }
    }

    void add(int row, int depth)
    {
        m_seen.insert(row);
        const auto text
            = [&](QStringView column) { return m_members.textAt(row, m_members.columnIndex(column)); };
        QStringList kids{text(u"kid1"), text(u"kid2"), text(u"kid3")};
        kids.removeAll(QString());
        // Wide blanks, which no reader takes away; the deepest families still leave room for a name.
        const QString indent(std::min(depth, 12) * 2, QChar(0x2003));
        m_rows << QStringList{indent + text(u"name"), text(u"spouse"), kids.join(u", ")};
    }

    const jet::Recordset& m_members;
    int m_id;
    QHash<QString, QList<int>> m_children; ///< rows by the id above them
    QSet<int> m_seen;
    QList<QStringList> m_rows;
};

} // namespace

QStringList familyColumns()
{
    return {u"person"_s, u"spouse"_s, u"children"_s};
}

QList<QStringList> familyRows(const jet::Recordset& members)
{
    return FamilyWalk(members).rows();
}

} // namespace reports
