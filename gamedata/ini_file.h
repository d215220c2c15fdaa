// The settings file that the editor shares with the game and its launcher: a list of sections,
// each a list of items. Text is bytes in no encoding, names are compared exactly, and the order
// of the file is kept; what is new goes to the end.
//
// The dialect is bare: no comments, no trimming. "[" and "]" mean a section wherever they stand.
#pragma once

#include "gamedata/runtime/t_stream.h"

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

constexpr const char *Ini_Version = "0.0.0.0";

class _IniItem_
{
public:
    std::string key;
    std::string value;

    std::string GetKey() const { return key; }
    std::string StringVal() const { return value; }
    // The digits and minus signs of the value as a number, 0 if they make none.
    int IntVal() const;
    void SetStringVal(const std::string &text) { value = text; }
    std::string CreateStr() const;
};

class _IniSection_
{
public:
    std::string key;
    std::vector<std::unique_ptr<_IniItem_>> items;

    // The first item of that name, null if there is none.
    _IniItem_ *GetItem(const std::string &name) const;
    // An item without a value at the end; one of that name may exist already.
    _IniItem_ *NewItem(const std::string &name);
    // Replaces all items by those of a section's text. A line without an equals sign becomes the
    // start of the next line's key.
    void SetItems(const std::string &body);
    std::string CreateStr() const;
};

class _Ini_
{
public:
    std::wstring fileName;     // full path
    TStream *stream = nullptr; // the file while Read runs; owned by Read
    std::vector<std::unique_ptr<_IniSection_>> sections;

    explicit _Ini_(std::wstring path);

    // Replaces the tree by the file's contents. A file that can't be read whole, or is larger
    // than any settings file, gives an empty tree.
    void Read();
    // Replaces the file by the tree's text, without a word if that fails. A file that Read
    // couldn't take in is left alone: the tree knows nothing of what stands there.
    void Write();
    std::string CreateStr() const;

    // The first section of that name, null if there is none.
    _IniSection_ *GetSection(const std::string &name) const;
    _IniSection_ *NewSection(const std::string &name);

    int GetIntVal(const char *section, const char *key, int defaultValue) const;
    // A copy of the value that lives as long as this object, or the default pointer itself.
    const char *GetStringVal(const char *section, const char *key, const char *defaultValue) const;
    // Adds section and item if they are missing. In memory only.
    void SetStringVal(const char *section, const char *key, const char *value);

private:
    const _IniItem_ *find(const char *section, const char *key) const;
    void parse(const std::string &text);

    bool m_fileUnread = false; // the file holds what the tree doesn't
    // Each answer of GetStringVal once, so that asking again and again takes no more memory.
    mutable std::unordered_set<std::string> m_answers;
};

// Reads the game's settings file into a new object. A missing one ends the process with a message.
_Ini_ *loadRavnIni();

// The game's settings; null until the start-up has read them.
extern _Ini_ *ini;
