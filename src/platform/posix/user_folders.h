#pragma once

#include <string>

/// An absolute path from the environment; empty when the variable has none.
std::string FolderFromEnvironment(const char* variable);

/// The settings folder of a program of that name; empty when there is none. Nothing is made.
std::string SettingsFolder(const std::string& program);

/// The same for what a program notes about its runs, such as a log.
std::string StateFolder(const std::string& program);
