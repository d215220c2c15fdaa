#include "benchmarks/child.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <stdexcept>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool isReplaced(const std::string &variable, const std::vector<std::string> &by)
{
    const std::string name = variable.substr(0, variable.find('=') + 1);
    return std::any_of(by.begin(), by.end(), [&](const std::string &entry) {
        return entry.compare(0, name.size(), name) == 0;
    });
}

std::vector<char *> pointersTo(std::vector<std::string> &texts)
{
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::string readToEnd(int pipe)
{
    std::string all;
    std::array<char, 4096> part{};
    ssize_t got = 0;
    while ((got = read(pipe, part.data(), part.size())) > 0)
        all.append(part.data(), std::size_t(got));
    return all;
}

} // namespace

std::string outputOf(const std::string &program, const std::vector<std::string> &arguments,
                     const std::vector<std::string> &environment)
{
    const std::string path = QCoreApplication::applicationDirPath().toStdString() + '/' + program;
    std::vector<std::string> words{path};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> variables = environment;
    for (char **variable = environ; *variable != nullptr; ++variable)
        if (!isReplaced(*variable, environment))
            variables.emplace_back(*variable);

    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int fault = posix_spawn(&process, path.c_str(), &actions, nullptr,
                                  pointersTo(words).data(), pointersTo(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::string output = fault == 0 ? readToEnd(ends[0]) : std::string();
    close(ends[0]);
    int status = 0;
    if (fault != 0 || waitpid(process, &status, 0) != process || status != 0)
        throw std::runtime_error(program + " did not end well");
    return output;
}
