#include "tools/book_generator.h"

#include "core/store/book_files.h"
#include "core/store/book_schema.h"
#include "jet/database.h"
#include "jet/date_text.h"
#include "platform/durable_files.h"

#include <QDate>
#include <QFile>

#include <algorithm>
#include <iterator>
#include <random>

using namespace Qt::StringLiterals;

namespace tools {

namespace {

constexpr quint32 kSeed = 20260615;
constexpr int kRowsAtOnce = 2000;
const QDate kToday(2026, 6, 15);

/// Numbers that are the same on every computer, which those of the standard distributions are not.
class Dice {
public:
    explicit Dice(quint32 seed)
        : m_engine(seed)
    {
    }
    int below(int limit) { return int(m_engine() % quint32(limit)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template <class List> const auto& pick(const List& list)
    {
        return *std::next(std::begin(list), below(int(std::size(list))));
    }
    template <class List> QString word(const List& list) { return pick(list).toString(); }
    /// Null in most rows: for the columns that few people fill.
    QString sometimes(int percent, const QString& text) { return chance(percent) ? text : QString(); }
    QString digits(int count)
    {
        QString text;
        for (int i = 0; i < count; ++i)
            text += QChar(u'0' + below(10));
        return text;
    }
    QDate date(int firstYear, int lastYear)
    {
        return QDate(between(firstYear, lastYear), 1, 1).addDays(below(365));
    }

private:
    std::mt19937 m_engine;
};

struct City {
    QString name;
    QString state;
    QString code;
    QString pinPrefix;
};

/// What a country's people are made of.
struct Country {
    QString name;
    QStringList men;
    QStringList women;
    QStringList lastNames;
    QStringList middleNames;
    QStringList companies;
    QList<City> cities;
};

struct Words {
    Country india{u"India"_s, {}, {}, {}, {}, {}, {}};
    Country america{u"United States"_s, {}, {}, {}, {}, {}, {}};
};

constexpr QStringView kFirstCategories[] = {u"Business", u"Family", u"Friends", u"Co-workers", u"Customers",
    u"Suppliers", u"Neighbours", u"School", u"College", u"Doctors", u"Lawyers", u"Banks", u"Clubs", u"Travel",
    u"Government", u"Press", u"Music", u"Sports", u"Temple - Trust", u"Charity", u"Real Estate", u"Services",
    u"Shops", u"Undefined"};
constexpr QStringView kSecondCategories[] = {u"General", u"Close", u"Old-timers", u"Prospects", u"Undefined"};
constexpr QStringView kTitles[] = {u"Mr.", u"Mrs.", u"Ms.", u"Dr.", u"Prof."};
constexpr QStringView kJobs[] = {u"Manager", u"Accountant", u"Engineer", u"Teacher", u"Director", u"Nurse",
    u"Sales Executive", u"Architect", u"Partner", u"Clerk"};
constexpr QStringView kHobbies[] = {u"Reading", u"Cricket", u"Gardening", u"Chess", u"Photography",
    u"Cooking", u"Trekking", u"Stamp collecting", u"Yoga", u"Baseball"};
constexpr QStringView kEducation[]
    = {u"B.A.", u"B.Com.", u"B.Sc.", u"M.A.", u"M.B.A.", u"Ph.D.", u"High School"};
constexpr QStringView kRegions[] = {u"Undefined", u"North", u"South", u"East", u"West"};
constexpr QStringView kReligions[] = {u"Hindu", u"Muslim", u"Christian", u"Sikh", u"Buddhist", u"Jain"};
constexpr QStringView kRelations[] = {u"Friend", u"Cousin", u"Aunt", u"Colleague", u"Boss", u"Neighbour"};
constexpr QStringView kProducts[]
    = {u"Undefined", u"Insurance", u"Software", u"Textiles", u"Hardware", u"Tea"};
constexpr QStringView kStates[] = {u"Undefined", u"Active", u"active", u"Inactive", u"Prospect"};
constexpr QStringView kAddressTypes[] = {u"Office", u"Factory", u"Branch", u"Billing"};
constexpr QStringView kStreets[] = {u"M. G. Road", u"Station Road", u"Park Avenue", u"Main Street",
    u"Hill Road", u"Linking Road", u"5th Avenue", u"Church Street", u"Lake View", u"Oak Lane"};
constexpr QStringView kAreas[] = {
    u"Andheri", u"Bandra", u"Koramangala", u"Midtown", u"Salt Lake", u"Anna Nagar", u"Lakeside", u"Old Town"};
constexpr QStringView kMailHosts[] = {u"example.com", u"example.org", u"example.net", u"mail.example.in"};
constexpr QStringView kNoteWords[] = {u"met", u"at", u"the", u"conference", u"in", u"spring", u"asked",
    u"for", u"a", u"quotation", u"likes", u"tea", u"call", u"before", u"noon", u"moved", u"to", u"new",
    u"office", u"daughter", u"studies", u"music", u"paid", u"half", u"wants", u"delivery", u"by", u"post",
    u"remember", u"golden", u"anniversary", u"invited", u"party", u"sent", u"photographs", u"of", u"journey"};
/// Every text that a like, a quote or an 8-bit file may stumble over.
constexpr QStringView kOddCities[] = {u"Mum[bai", u"St* Louis", u"What?ville", u"100% Town", u"Under_score",
    u"#1 Village", u"São Paulo", u"Zürich", u"L'Aquila", u"Ernakulam [South]", u"New  Delhi", u"東京"};
constexpr QStringView kOddLastNames[] = {u"O'Brien", u"D'Souza", u"Müller", u"Peña", u"Łukasiewicz", u"d'Arc",
    u"Smith-Jones", u"शर्मा", u"Ng", u"de la Cruz"};
constexpr QStringView kOddNickNames[]
    = {u"Sunny ☀️", u"🎻", u"Zoë 👩‍👩‍👧", u"\"Ace\"", u"Jo & Co", u"100%"};

Words readWords()
{
    Words words;
    const QList<core::ShippedRows> tables = core::shippedRows(core::BookPart::Information);
    QString americaId;
    for (const core::ShippedRows& shipped : tables) {
        if (shipped.table != u"WIA_GLOBALMAS")
            continue;
        for (const QStringList& row : shipped.rows) {
            if (row.value(shipped.columns.indexOf(u"country"_s)) == words.america.name)
                americaId = row.value(shipped.columns.indexOf(u"id"_s));
        }
    }
    for (const core::ShippedRows& shipped : tables) {
        const auto at = [&shipped](QStringView column) { return shipped.columns.indexOf(column); };
        if (shipped.table == u"wia_cntnames") {
            for (const QStringList& row : shipped.rows) {
                Country& country = row.value(at(u"national")) == u"N" ? words.india : words.america;
                const QString first = row.value(at(u"first"));
                if (!first.isEmpty())
                    (row.value(at(u"Gender")) == u"Male" ? country.men : country.women) << first;
                if (const QString last = row.value(at(u"last")); !last.isEmpty())
                    country.lastNames << last;
                if (const QString middle = row.value(at(u"middle")); !middle.isEmpty())
                    country.middleNames << middle;
            }
        } else if (shipped.table == u"wia_company") {
            for (const QStringList& row : shipped.rows)
                (row.value(at(u"national")) == u"N" ? words.india : words.america).companies << row.value(0);
        } else if (shipped.table == u"WIA_INDIA") {
            for (const QStringList& row : shipped.rows)
                words.india.cities << City{row.value(at(u"city")), row.value(at(u"state")),
                    row.value(at(u"std")), row.value(at(u"Pin Prefix"))};
        } else if (shipped.table == u"WIA_CITY") {
            for (const QStringList& row : shipped.rows) {
                if (row.value(at(u"country id")) == americaId)
                    words.america.cities << City{
                        row.value(at(u"city")), row.value(at(u"state")), row.value(at(u"cityisd")), {}};
            }
        }
    }
    // Most people live in the large cities, which stand first.
    words.india.cities = words.india.cities.mid(0, 150);
    words.america.cities = words.america.cities.mid(0, 150);
    return words;
}

/// Collects rows for one table; the first row gives the columns.
class Rows {
public:
    Rows(jet::Database& database, const QString& table)
        : m_database(database)
        , m_table(table)
    {
    }
    void set(QStringView column, const QString& value)
    {
        if (m_first)
            m_columns << column.toString();
        m_row << value;
    }
    void set(QStringView column, QStringView value) { set(column, value.toString()); }
    void set(QStringView column, int value) { set(column, QString::number(value)); }
    void setFlag(QStringView column, bool value) { set(column, value ? u"true"_s : u"false"_s); }
    void set(QStringView column, QDate value) { set(column, jet::isoDate(value)); }
    void endRow()
    {
        Q_ASSERT(m_row.size() == m_columns.size());
        m_first = false;
        m_rows << std::exchange(m_row, {});
        m_row.reserve(m_columns.size());
        if (m_rows.size() >= kRowsAtOnce)
            flush();
    }
    bool flush()
    {
        m_ok = m_ok && (m_rows.isEmpty() || m_database.appendRows(m_table, m_columns, m_rows));
        m_rows.clear();
        return m_ok;
    }

private:
    jet::Database& m_database;
    QString m_table;
    QStringList m_columns;
    QStringList m_row;
    QList<QStringList> m_rows;
    bool m_first = true;
    bool m_ok = true;
};

QString note(Dice& dice, int words)
{
    QString text;
    for (int i = 0; i < words; ++i)
        text += (i == 0 ? u""_s : i % 9 == 0 ? u"\r\n"_s : u" "_s) + dice.word(kNoteWords);
    return text;
}

struct Address {
    City city;
    QString country;
};

/// A contact as the other tables refer to it.
struct Person {
    int id = 0;
    QString name;
    QString phone;
    QString city;
    QString category;
    QString priority;
};

class Generator {
public:
    explicit Generator(jet::Database& database)
        : m_database(database)
        , m_contacts(database, u"cnt_main"_s)
        , m_dice(kSeed)
        , m_words(readWords())
    {
    }

    bool run(int count)
    {
        jet::Batch whole(m_database);
        const int firstId
            = int(m_database.openRecordset(u"select max(id) as last from cnt_main").number(u"last")) + 1;
        bool done = addCategories();
        for (int i = 0; i < count; ++i)
            addContact(firstId + i, i);
        done = m_contacts.flush() && done && addRelated();
        // Rows are added with null for what they lack; a form that was cleared leaves an empty text.
        done = done
            && m_database.execute(u"update cnt_main set Maiden='', Hobbies='', b_note='' where id in "
                                  "(select id from cnt_main where nick is not null and Hobbies is null)");
        if (done)
            return whole.commit();
        whole.rollBack();
        return false;
    }

private:
    bool addCategories()
    {
        // Behind the shipped pairs, each pair once.
        int id = int(
            m_database.openRecordset(u"select max(catid) as last from CNTB_CATEGORIES").number(u"last"));
        Rows rows(m_database, u"CNTB_CATEGORIES"_s);
        for (const QStringView first : kFirstCategories) {
            for (const QStringView second : kSecondCategories) {
                const QString pair
                    = u"select catid from CNTB_CATEGORIES where category1='%1' and category2='%2'"_s.arg(
                        first, second);
                if (!m_database.openRecordset(pair).isEmpty())
                    continue;
                rows.set(u"catid", ++id);
                rows.set(u"CATEGORY1", first);
                rows.set(u"CATEGORY2", second);
                rows.setFlag(u"DELETED", first == u"Press");
                rows.endRow();
            }
        }
        return rows.flush();
    }

    QString number(const Country& country, int percent)
    {
        if (!m_dice.chance(percent))
            return {};
        return &country == &m_words.india ? m_dice.digits(8) : m_dice.digits(3) + u'-' + m_dice.digits(4);
    }

    QString mail(const QString& first, const QString& last, int percent)
    {
        if (!m_dice.chance(percent))
            return {};
        return (first + u'.' + last + QString::number(m_dice.below(90))).toLower().remove(u' ').remove(u'\'')
            + u'@' + m_dice.word(kMailHosts);
    }

    void address(QStringView prefix, QStringView code, const Country& country, bool filled, bool odd)
    {
        const auto& city = m_dice.pick(country.cities);
        const auto column = [prefix](QStringView rest) { return prefix.toString() + rest.toString(); };
        const auto add = [&](QStringView rest, const QString& value) {
            m_contacts.set(column(rest), filled ? value : QString());
        };
        const QString street = QString::number(m_dice.between(1, 400)) + u", "_s + m_dice.word(kStreets);
        add(u"add1", odd ? street.repeated(20).left(200) : street);
        add(u"add2", m_dice.sometimes(70, m_dice.word(kAreas)));
        m_city = odd ? m_dice.word(kOddCities) : city.name;
        add(u"city", m_city);
        add(u"state", city.state);
        add(u"country", country.name);
        add(u"pin", city.pinPrefix.isEmpty() ? m_dice.digits(5) : city.pinPrefix + m_dice.digits(3));
        m_contacts.set(code, filled ? city.code : QString());
    }

    void child(int which, const Country& country, bool born)
    {
        const QString slot = QString::number(which);
        m_contacts.set(QString(u"kid"_s + slot),
            born ? m_dice.pick(m_dice.chance(50) ? country.men : country.women) : QString());
        m_contacts.set(
            QString(u"Kid"_s + slot + u"_BD"_s), born ? jet::isoDate(m_dice.date(1985, 2024)) : QString());
    }

    QDate birthday(int index)
    {
        constexpr int kLeapYears[] = {1896, 1904, 1936, 1948, 1964, 1976, 1992, 2000, 2012};
        if (index % 41 == 3)
            return {m_dice.pick(kLeapYears), 2, 29};
        if (index % 53 == 7)
            return m_dice.date(1850, 1899);
        return m_dice.date(1930, 2015);
    }

    void addContact(int id, int index)
    {
        const bool isIndian = m_dice.chance(60);
        const Country& country = isIndian ? m_words.india : m_words.america;
        const bool isMan = m_dice.chance(50);
        const bool isFirm = index % 37 == 11;
        const bool isOdd = index % 29 == 5;
        const bool isDouble = index % 47 == 13 && !m_people.isEmpty();
        QString first = m_dice.pick(isMan ? country.men : country.women);
        QString last = isOdd ? m_dice.word(kOddLastNames) : m_dice.pick(country.lastNames);
        QString company = isFirm || m_dice.chance(55) ? m_dice.pick(country.companies) : QString();
        if (index % 211 == 17)
            company = (company + u" Brothers, Sons & Partners "_s).repeated(10).left(200);
        if (isFirm)
            first = last = QString();

        QString name = first + u' ' + last;
        QStringView view = u"First,Last";
        if (isFirm) {
            name = company;
            view = u"Company";
        } else if (isDouble) {
            name = m_dice.pick(m_people).name;
        } else if (!company.isEmpty() && m_dice.chance(20)) {
            name = first + u' ' + last + u' ' + company;
            view = u"First,Last (Company)";
        } else if (m_dice.chance(25)) {
            name = last + u' ' + first;
            view = u"Last,First";
        }
        // What an import leaves behind: a firm that no form gave a name.
        if (index % 370 == 11)
            name.clear();

        Rows& row = m_contacts;
        row.set(u"id", id);
        row.set(u"Name", name);
        row.set(u"Nview", view);
        row.set(u"Title", isFirm ? QString() : m_dice.word(kTitles));
        row.set(u"First", first);
        row.set(u"Last", last);
        row.set(u"Mid", m_dice.sometimes(20, m_dice.pick(country.middleNames)));
        row.set(u"nick", isOdd ? m_dice.word(kOddNickNames) : m_dice.sometimes(10, first.left(4)));
        row.set(u"Maiden", isMan ? QString() : m_dice.sometimes(15, m_dice.pick(country.lastNames)));
        row.set(u"sex", isFirm ? QString() : isMan ? u"Male"_s : u"Female"_s);
        row.set(u"Company", company);
        row.set(u"Job_Title", company.isEmpty() ? QString() : m_dice.sometimes(70, m_dice.word(kJobs)));
        row.set(u"altcontact", m_dice.sometimes(15, m_dice.pick(country.women)));
        row.set(u"AltTitle", m_dice.sometimes(10, u"Secretary"_s));

        const bool isMarried = !isFirm && m_dice.chance(50);
        const QDate wedding = m_dice.date(1955, 2024);
        row.set(u"Spouse", isMarried ? m_dice.pick(isMan ? country.women : country.men) : QString());
        row.set(u"Sp_BD", isMarried && m_dice.chance(60) ? birthday(index + 1) : QDate());
        row.set(u"SP_Mobile", isMarried ? m_dice.sometimes(40, u"9"_s + m_dice.digits(9)) : QString());
        const int children = isMarried ? m_dice.below(4) : 0;
        for (int i = 1; i <= 3; ++i)
            child(i, country, i <= children);
        row.set(u"M_BD", !isFirm && m_dice.chance(70) ? birthday(index) : QDate());
        row.set(u"Anniv", isMarried && m_dice.chance(70) ? wedding : QDate());
        for (const QStringView copied :
            {u"cpsmnbd", u"cpsspbd", u"cpsk1bd", u"cpsk2bd", u"cpsk3bd", u"cpsanni"})
            row.setFlag(copied, m_dice.chance(8));

        address(u"h_", u"h_std", country, m_dice.chance(85), isOdd);
        const QString homeCity = m_city;
        const QString homePhone = number(country, 75);
        row.set(u"H_Ph1", homePhone);
        row.set(u"h_ph2", number(country, 20));
        row.set(u"h_ph3", number(country, 5));
        row.set(u"h_web", m_dice.sometimes(8, u"www.example.com/"_s + first.toLower()));
        row.set(u"H_email1", mail(first, last, 60));
        row.set(u"h_email2", mail(first, last, 10));

        address(u"b_", u"B_std", country, m_dice.chance(40), false);
        row.set(u"B_Ph1", number(country, 40));
        row.set(u"B_Ph2", number(country, 15));
        row.set(u"B_ph3", number(country, 5));
        row.set(u"b_tel_xtn", m_dice.sometimes(15, m_dice.digits(3)));
        row.set(u"B_Add_Type", m_dice.sometimes(30, m_dice.word(kAddressTypes)));
        row.set(u"B_Web", m_dice.sometimes(15, u"www.example.org"_s));
        row.set(u"b_email1", mail(first, last, 25));
        row.set(u"b_email2", mail(first, last, 5));
        row.set(u"b_note", m_dice.sometimes(20, note(m_dice, 12)));

        address(u"w_", u"W_std", country, m_dice.chance(15), false);
        row.set(u"w_Ph1", number(country, 15));
        row.set(u"w_Ph2", number(country, 5));
        row.set(u"w_ph3", number(country, 2));
        row.set(u"W_Tel_XTN", m_dice.sometimes(5, m_dice.digits(3)));
        row.set(u"W_AddType", m_dice.sometimes(12, m_dice.word(kAddressTypes)));
        row.set(u"w_email1", mail(first, last, 10));
        row.set(u"W_web", m_dice.sometimes(5, u"www.example.net"_s));
        row.set(u"W_Email2", mail(first, last, 2));

        const QString mobile = m_dice.sometimes(70, u"9"_s + m_dice.digits(9));
        row.set(u"Mobile", mobile);
        row.set(u"Sms", m_dice.sometimes(20, mobile));
        row.set(u"fax", number(country, 10));
        const QString category = m_dice.word(kFirstCategories);
        const QString priority = QString::number(m_dice.between(1, 5));
        row.set(u"category1", category);
        row.set(u"category2", m_dice.word(kSecondCategories));
        row.set(u"Priority", priority);
        row.set(u"Product", m_dice.word(kProducts));
        row.set(u"Status", m_dice.word(kStates));
        row.set(u"region", m_dice.word(kRegions));
        row.set(u"Relation", m_dice.sometimes(30, m_dice.word(kRelations)));
        row.set(u"Religion", m_dice.sometimes(25, m_dice.word(kReligions)));
        row.set(u"education", m_dice.sometimes(35, m_dice.word(kEducation)));
        row.set(u"Hobbies",
            index % 307 == 19 ? note(m_dice, 60).left(200) : m_dice.sometimes(30, m_dice.word(kHobbies)));
        row.set(u"Asso1", m_people.isEmpty() ? QString() : m_dice.sometimes(10, m_dice.pick(m_people).name));
        row.set(u"asso2", m_people.isEmpty() ? QString() : m_dice.sometimes(4, m_dice.pick(m_people).name));
        row.set(u"User1", m_dice.sometimes(15, u"Gold"_s));
        row.set(u"User2", m_dice.sometimes(10, u"Newsletter"_s));
        row.set(u"User3", m_dice.sometimes(5, m_dice.digits(6)));
        row.set(u"memo1", m_dice.sometimes(15, note(m_dice, 25)));
        row.set(u"Memo", m_dice.sometimes(10, note(m_dice, 40)));
        row.set(u"PhotLoc", m_dice.sometimes(5, u"C:\\OVUserFiles\\Photos\\%1.jpg"_s.arg(id)));
        row.set(u"fam_note", m_dice.sometimes(15, note(m_dice, 15)));
        const QDate entered = m_dice.date(2004, 2025);
        row.set(u"dateEnter", entered);
        row.set(u"DateModi", std::min(entered.addDays(m_dice.below(900)), kToday));
        row.setFlag(u"selected", m_dice.chance(2));
        row.setFlag(u"fmtree", m_dice.chance(3));
        row.set(u"palm", m_dice.sometimes(5, u"Y"_s));
        row.set(u"gen_id", u"0");
        addRareColumns(id);
        row.endRow();
        if (!name.isEmpty() && (m_people.size() < 5000 || index % 50 == 0))
            m_people << Person{id, name, mobile.isEmpty() ? homePhone : mobile, homeCity, category, priority};
    }

    /// The columns that single screens use, and those that only a data replacement fills.
    void addRareColumns(int id)
    {
        Rows& row = m_contacts;
        row.set(u"sunsign", m_dice.sometimes(5, u"Leo"_s));
        row.set(u"code_1b", m_dice.sometimes(1, u"CU%1"_s.arg(id)));
        row.set(u"location", m_dice.sometimes(3, u"Ground floor"_s));
        row.set(u"H_ADD_DESC", m_dice.sometimes(4, u"Behind the post office"_s));
        row.set(u"W_ADD_DESC", m_dice.sometimes(2, u"Second gate"_s));
        row.set(u"B_PRODUCT", m_dice.sometimes(5, m_dice.word(kProducts)));
        row.set(u"grp", m_dice.sometimes(3, u"A"_s));
        row.set(u"Rate", m_dice.sometimes(2, m_dice.digits(2)));
        row.set(u"Amt", m_dice.sometimes(2, m_dice.digits(4)));
        row.set(u"Product Group", m_dice.sometimes(3, u"Office goods"_s));
        row.set(u"Action", m_dice.sometimes(2, u"Call back"_s));
        row.set(u"Size", m_dice.sometimes(1, u"XL"_s));
        row.set(u"qty", m_dice.sometimes(1, m_dice.digits(2)));
        row.set(u"Desc", m_dice.sometimes(2, note(m_dice, 10)));
        row.set(u"Response", m_dice.sometimes(2, u"Interested"_s));
        row.set(u"User4", m_dice.sometimes(1, u"four"_s));
        row.set(u"User5", m_dice.sometimes(1, u"five"_s));
        row.set(u"to", m_dice.sometimes(1, u"all"_s));
        row.set(u"h_Zip", m_dice.sometimes(1, m_dice.digits(5)));
        row.set(u"w_Zip", m_dice.sometimes(1, m_dice.digits(5)));
        row.set(u"b_Zip", m_dice.sometimes(1, m_dice.digits(5)));
    }

    bool addRelated()
    {
        Rows journal(m_database, u"OV_JOURNAL"_s);
        Rows calls(m_database, u"cnt_phcall"_s);
        Rows phoneLists(m_database, u"cnt_phlist"_s);
        Rows memories(m_database, u"cnt_phonenum"_s);
        Rows mailing(m_database, u"cnt_maillist"_s);
        constexpr QStringView kLists[] = {u"Daily", u"Emergency", u"Week-end"};
        constexpr QStringView kMailings[] = {u"New year cards", u"Newsletter", u"Price list"};
        for (qsizetype i = 0; i < m_people.size(); ++i) {
            const Person& person = m_people[i];
            if (i % 4 == 0) {
                const QDate day = m_dice.date(2020, 2025);
                journal.set(u"fromId", u"GEN-%1"_s.arg(person.id));
                journal.set(u"JDate", day);
                journal.set(u"Priority", u"4");
                journal.set(u"categ1", u"Meetings");
                journal.set(u"categ2", u"General");
                journal.set(u"desc", note(m_dice, 12));
                journal.set(u"Source", i % 8 == 0 ? u"Journal" : u"Letter");
                journal.set(u"person1", person.name);
                journal.endRow();
            }
            if (i % 3 == 0) {
                calls.set(u"PerId", person.id);
                calls.set(u"Numb", person.phone);
                calls.set(u"Name", person.name);
                calls.set(u"Date", m_dice.date(2024, 2025));
                calls.set(u"Time",
                    u"1899-12-30 %1:%2:00"_s.arg(m_dice.between(10, 18)).arg(m_dice.between(10, 59)));
                calls.set(u"Todo", u"Follow up");
                calls.set(u"Result", m_dice.sometimes(60, u"Busy"_s));
                calls.set(u"NextCall", m_dice.chance(20) ? kToday.addDays(m_dice.below(60)) : QDate());
                calls.setFlag(u"CallLater", m_dice.chance(20));
                calls.endRow();
            }
            if (i % 10 == 0) {
                phoneLists.set(u"listname", m_dice.word(kLists));
                phoneLists.set(u"Name", person.name);
                phoneLists.set(u"desc", person.name);
                phoneLists.set(u"phone", person.phone);
                phoneLists.set(u"PerId", person.id);
                phoneLists.set(u"category1", person.category);
                phoneLists.set(u"city", person.city);
                phoneLists.set(u"Priority", person.priority);
                phoneLists.endRow();
                mailing.set(u"perid", person.id);
                mailing.set(u"name", person.name);
                mailing.set(u"listname", m_dice.word(kMailings));
                mailing.endRow();
            }
            if (i < 10) {
                memories.set(u"List", u"Memory 1");
                memories.set(u"cmbnum", int(i));
                memories.set(u"PerId", person.id);
                memories.set(u"phonenum", person.phone);
                memories.set(u"Name", person.name);
                memories.endRow();
            }
        }
        return journal.flush() && calls.flush() && phoneLists.flush() && memories.flush() && mailing.flush();
    }

    jet::Database& m_database;
    Rows m_contacts;
    Dice m_dice;
    Words m_words;
    QString m_city;
    QList<Person> m_people;
};

} // namespace

bool addContacts(jet::Database& database, int count)
{
    return Generator(database).run(count);
}

bool makeBook(const QString& path, int count)
{
    // Under another name until all contacts are in.
    const QString unfinished = path + u".part"_s;
    QFile::remove(unfinished);
    bool done = !QFile::exists(path) && core::BookFiles::makeNew(unfinished, core::BookPart::Data, false);
    if (done) {
        jet::Database database;
        done
            = database.open(unfinished, jet::Database::Kind::Information) == jet::Database::OpenResult::Opened
            && addContacts(database, count);
    }
    if (done && platform::putInPlace(unfinished, path))
        return true;
    QFile::remove(unfinished);
    return false;
}

} // namespace tools
