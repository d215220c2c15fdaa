// Programs of the build's folder, started as cheaply as the system can: a large process that forks
// would add its own size to every start it measures.
#pragma once

#include <string>
#include <vector>

// Runs a program that stands beside this one, with `environment` ("NAME=value") in place of what it
// would inherit under these names, and waits for its end. Answers what it wrote to standard output;
// what goes to standard error is lost. Throws if it did not end well.
std::string outputOf(const std::string &program, const std::vector<std::string> &arguments = {},
                     const std::vector<std::string> &environment = {});
