#include "choices.h"

int Choices::number(int below)
{
    return atEnd() ? 0 : *m_next++ % below;
}

QString Choices::oneOf(const QStringList &texts)
{
    return texts.isEmpty() ? QString() : texts.at(number(int(texts.size())));
}

QString Choices::tag(const QStringList &tags)
{
    static const QStringList others{"none", "",      "Undefined", "no name", "FFloor_2",  "SSheet_10",
                                    "Mine", "Room2", "Cable7",    "1st",     "Port_List", "\u00dc"};
    return tags.isEmpty() || oneIn(6) ? oneOf(others) : oneOf(tags);
}

QString Choices::id()
{
    static const QStringList ids{
        "Hall",      "7",       "",      "Hall1", "12",  "12A",   "Cable001", "<\u00dc\"&'>\r\n\t",
        "Undefined", "Hall 10", "Cable", " ",     "007", "Room1", "Cable010", "Hall2147483647"};
    return oneOf(ids);
}

int Choices::whole()
{
    return (number(256) - 128) * (oneIn(8) ? 65537 : 1);
}

double Choices::real()
{
    return whole() / (oneIn(2) ? 7.0 : 4.0);
}
