#pragma once

#include <QString>

#include <vector>

/// The vocabularies that come with the program, as the start page names them.
namespace Lessons {

struct Lesson
{
    QString title; ///< of a file "03-first-verbs.gla": "3 First verbs"
    QString path;
};

/// The lessons of a folder that is called after their language.
struct Group
{
    QString title; ///< empty for lessons that stand in no folder
    std::vector<Lesson> lessons;
};

/// What stands in a folder and in the folders below it, in the order of their names; groups without a lesson are left
/// out.
std::vector<Group> in(const QString &folder);

} // namespace Lessons
