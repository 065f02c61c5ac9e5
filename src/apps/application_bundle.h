#pragma once

#include <QString>
#include <QStringView>

namespace ferrow {

// What a process belongs to, from its executable's path alone.
struct ExecutableGroup {
    QString group;  // the application bundle's path, else the executable's name
    QString name;   // the bundle's folder name without ".app", else the executable's name; one line
    QString bundle; // the bundle's path; empty outside one
};

// The outermost ".app" folder on the path holds the process, so an application's helpers, login
// items and XPC services (Foo.app/Contents/Frameworks/Foo Helper.app/...) count as the application.
// A path without a folder (a bare process name) is its own group.
ExecutableGroup executableGroup(QStringView executablePath);

// A name fit for one line of a list: control characters and line breaks as spaces, trimmed.
QString oneLineName(QStringView text);

} // namespace ferrow
