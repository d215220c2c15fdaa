#include "tests/desktop/workplace.h"

#include <QDir>

#include <filesystem>

namespace {

constexpr int chunkMilliseconds = 46; // about the time that its sound takes

} // namespace

Workplace::Workplace(BuiltParts parts)
    : m_parts(std::move(parts)), m_sound(chunkMilliseconds),
      m_editor(m_screen, m_parts.programs + "/cmped", m_parts.plugins, environment())
{
    std::filesystem::copy(m_parts.game.toStdString(), gameFolder().toStdString(),
                          std::filesystem::copy_options::recursive);
    QDir(m_folder.path()).mkpath("campaigns");
    QDir().mkpath(recoveryFolder());
}

QProcessEnvironment Workplace::environment() const
{
    QProcessEnvironment with = QProcessEnvironment::systemEnvironment();
    with.insert("CMPED_GAME_DIR", gameFolder());
    with.insert("HOME", m_folder.path());
    with.insert("XDG_CONFIG_HOME", m_folder.filePath("config"));
    with.insert("XDG_DATA_HOME", m_folder.filePath("data"));
    with.insert("XDG_RUNTIME_DIR", m_folder.path());
    with.insert("LC_ALL", "C.UTF-8");
    return with;
}
