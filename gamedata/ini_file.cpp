#include "gamedata/ini_file.h"

#include "gamedata/game_dir.h"
#include "gamedata/limits.h"
#include "gamedata/report.h"
#include "gamedata/runtime/text_tools.h"
#include "gamedata/safe_save.h"

#include <QFileInfo>

#include <string_view>
#include <unordered_map>
#include <utility>

_Ini_ *ini = nullptr;

namespace {

const char lineEnd[] = "\r\n";
const char emptyLine[] = "\r\n\r\n";

template<typename Named>
Named *firstOf(const std::vector<std::unique_ptr<Named>> &list, std::string_view name)
{
    for (const auto &named : list) {
        if (named->key == name)
            return named.get();
    }
    return nullptr;
}

template<typename Named>
Named *append(std::vector<std::unique_ptr<Named>> &list, const std::string &name)
{
    list.push_back(std::make_unique<Named>());
    list.back()->key = name;
    return list.back().get();
}

// Finds what a list already has by name while it is filled: a walk for each name would take
// hours on a file of a million names. The keys stay with the list.
template<typename Named>
class NameIndex
{
public:
    explicit NameIndex(std::vector<std::unique_ptr<Named>> &list) : m_list(list) {}

    Named *get(const std::string &name)
    {
        const auto known = m_known.find(name);
        if (known != m_known.end())
            return known->second;
        Named *named = append(m_list, name);
        m_known.emplace(named->key, named);
        return named;
    }

private:
    std::vector<std::unique_ptr<Named>> &m_list;
    std::unordered_map<std::string_view, Named *> m_known;
};

// The rest of the stream. False if it can't be read whole or goes past the limit.
bool readText(TStream *stream, std::string &text)
{
    const int size = stream->Size();
    if (size > limits::settingsBytes)
        return false;
    text.resize(static_cast<std::size_t>(size));
    return stream->Read(text.data(), static_cast<unsigned>(size)) != 0;
}

} // namespace

int _IniItem_::IntVal() const
{
    return StrToInt(ClearToNum(value, false).c_str());
}

std::string _IniItem_::CreateStr() const
{
    return key + "=" + value + lineEnd;
}

_IniItem_ *_IniSection_::GetItem(const std::string &name) const
{
    return firstOf(items, name);
}

_IniItem_ *_IniSection_::NewItem(const std::string &name)
{
    return append(items, name);
}

void _IniSection_::SetItems(const std::string &body)
{
    items.clear();
    NameIndex<_IniItem_> index(items);
    std::string name;
    std::string value;
    bool inValue = false;
    const auto store = [&] {
        if (!inValue)
            return; // the line's text stays in front of the next key
        index.get(name)->value = value;
        name.clear();
        value.clear();
        inValue = false;
    };
    for (const char c : body) {
        if (c == '\n' || c == '\r')
            store();
        else if (c == '=')
            inValue = true;
        else
            (inValue ? value : name) += c;
    }
    store();
}

std::string _IniSection_::CreateStr() const
{
    std::string text = "[" + key + "]" + emptyLine;
    for (const auto &item : items)
        text += item->CreateStr();
    return text;
}

_Ini_::_Ini_(std::wstring path) : fileName(std::move(path)) {}

void _Ini_::Read()
{
    sections.clear();
    const TStreamPtr<TFileStream> file(TFileStream::Create(fileName.c_str(), 0));
    m_fileUnread = !file && QFileInfo::exists(QString::fromStdWString(fileName));
    if (!file)
        return;
    stream = file.get();
    stream->Seek(0, TStream::FromStart);
    std::string text;
    m_fileUnread = !readText(stream, text);
    if (!m_fileUnread)
        parse(text);
    stream = nullptr;
}

void _Ini_::parse(const std::string &text)
{
    enum class State
    {
        BeforeSections,
        InName,
        InBody
    };
    NameIndex<_IniSection_> index(sections);
    std::string name;
    std::string body;
    State state = State::BeforeSections;
    const auto finish = [&] {
        if (state != State::InBody)
            return;
        index.get(name)->SetItems(body);
        name.clear();
        body.clear();
    };
    for (const char c : text) {
        if (c == '[') {
            finish();
            state = State::InName;
        } else if (c == ']') {
            state = State::InBody;
        } else if (state == State::InName) {
            name += c;
        } else if (state == State::InBody) {
            body += c;
        }
    }
    finish();
}

void _Ini_::Write()
{
    if (m_fileUnread)
        return;
    const std::string text = CreateStr();
    saveFileSafely(QString::fromStdWString(fileName),
                   {QByteArray::fromRawData(text.data(), static_cast<int>(text.size()))});
}

std::string _Ini_::CreateStr() const
{
    std::string text;
    for (const auto &section : sections)
        text += section->CreateStr() + emptyLine;
    return text;
}

_IniSection_ *_Ini_::GetSection(const std::string &name) const
{
    return firstOf(sections, name);
}

_IniSection_ *_Ini_::NewSection(const std::string &name)
{
    return append(sections, name);
}

const _IniItem_ *_Ini_::find(const char *section, const char *key) const
{
    const _IniSection_ *found = GetSection(section);
    return found ? found->GetItem(key) : nullptr;
}

int _Ini_::GetIntVal(const char *section, const char *key, int defaultValue) const
{
    const _IniItem_ *item = find(section, key);
    return item ? item->IntVal() : defaultValue;
}

const char *_Ini_::GetStringVal(const char *section, const char *key,
                                const char *defaultValue) const
{
    const _IniItem_ *item = find(section, key);
    return item ? m_answers.insert(item->value).first->c_str() : defaultValue;
}

void _Ini_::SetStringVal(const char *section, const char *key, const char *value)
{
    _IniSection_ *target = GetSection(section);
    if (!target)
        target = NewSection(section);
    _IniItem_ *item = target->GetItem(key);
    if (!item)
        item = target->NewItem(key);
    item->SetStringVal(value);
}

_Ini_ *loadRavnIni()
{
    const QString path = gameRoot() + QLatin1String("/Ravn_settings.ini");
    if (!fileExists(path))
        endWithMessage(mainWindowText(QT_TRANSLATE_NOOP(
            "MainWindow",
            "Eldmark Campaign Editor cannot be launched because Ravn_settings.ini was not found. "
            "\nRavn_settings.ini must be in Eldmark root folder.")));
    auto settings = std::make_unique<_Ini_>(path.toStdWString());
    settings->Read();
    return settings.release();
}
