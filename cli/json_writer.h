// Writes JSON piece by piece to standard output, so that a large campaign needs no second copy in
// memory. Members stand in the order of the calls, two blanks a level; texts are UTF-8, halves of
// surrogate pairs are escaped.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <type_traits>
#include <vector>

class StandardOutput;

class JsonWriter
{
public:
    // The output is used as long as the writer lives.
    explicit JsonWriter(StandardOutput &output);

    void beginObject();
    void endObject();
    void beginArray();
    void endArray();

    // The name of the object's next member; one value follows.
    void key(const QString &name);
    void key(const char *name) { key(QString::fromLatin1(name)); }

    void value(const QString &text);
    void null();
    template<typename Number>
    std::enable_if_t<std::is_arithmetic_v<Number>> value(Number number)
    {
        if constexpr (std::is_same_v<Number, bool>)
            raw(number ? "true" : "false");
        else
            integer(qint64(number));
    }
    template<typename T>
    void value(const std::vector<T> &items)
    {
        list(items);
    }
    template<typename T, size_t size>
    void value(const std::array<T, size> &items)
    {
        list(items);
    }

    template<typename T>
    void field(const char *name, const T &content)
    {
        key(name);
        value(content);
    }

    // The line end behind the last value.
    void end();

private:
    template<typename Items>
    void list(const Items &items)
    {
        beginArray();
        for (const auto &item : items)
            value(item);
        endArray();
    }
    void begin(char bracket);
    void close(char bracket);
    void integer(qint64 number);
    void raw(const QByteArray &token); // one whole value
    void separate();                   // what stands in front of a value or a key
    void newLine();

    StandardOutput &m_output;
    int m_depth = 0;
    bool m_empty = true;     // nothing stands in the innermost object or array yet
    bool m_afterKey = false; // the value belongs to the key just written
};
