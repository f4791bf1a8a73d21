#pragma once

#include <array>
#include <functional>

#include <QDate>
#include <QString>
#include <QStringList>

/// The vCards of this program, version 2.1 as it has always spelled them: one property a line, told by the
/// exact start of the line. Readers take any text, look at its first card only, and pass over what they don't
/// know.
namespace formats {

/// A longer file is not read, a longer line is passed over, and no card has more lines.
inline constexpr qint64 maxCardBytes = 1024 * 1024;
inline constexpr qsizetype maxCardLine = 10'000;
inline constexpr int maxCardLines = 10'000;

struct CardAddress {
    QString line1;
    QString line2;
    QString city;
    QString state;
    QString pin;
    QString country;
};

/// What a card shows, each text as it is shown.
struct CardFields {
    QString name; ///< of the N line, its parts with blanks between
    QString fullName;
    QString nick;
    QString company;
    QString jobTitle;
    QString spouse;
    QString birthday; ///< "05/Mar/1980"
    QString workWeb;
    QString mobile;
    QStringList workPhones;
    QStringList homePhones;
    QStringList faxes;
    QStringList preferredEmails;
    QStringList emails;
    QString workAddress;
    QString homeAddress;
    CardAddress home; ///< the same in its parts
    QString postalAddress;
};

CardFields readCard(QStringView text);

/// The text of the first N, FN or NICKNAME line that names somebody; `namesNobody` tells which texts don't.
/// The start of a file is enough when something is found in it.
QString cardLabel(QStringView text, const std::function<bool(const QString&)>& namesNobody = {});

/// What goes into a card; which of it depends on the writer.
struct CardValues {
    QString name; ///< as it is listed; also the name of the file
    QString nameView;
    QString title;
    QString first;
    QString middle;
    QString last;
    QString nick;
    QString company;
    QString spouse;
    std::array<QString, 3> workPhones;
    std::array<QString, 3> homePhones;
    QString mobile;
    QString fax;
    CardAddress work;
    CardAddress home;
    CardAddress postal;
    QDate birthday;
    QString email;
    QString secondEmail; ///< on a line of its own in the card of entered values
    QString workEmail;
    QString web;
};

/// The 24 lines for a contact of the book.
QStringList contactCardLines(const CardValues& values);
/// The 22 lines for what stands in an entry form: no postal address, and another name line.
QStringList enteredCardLines(const CardValues& values);
/// The six lines for somebody of whom a mail tells only name and address.
QStringList senderCardLines(const QString& name, const QString& email);

} // namespace formats
