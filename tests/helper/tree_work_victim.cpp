// What the helper does as root, in a program of its own, so that its calls can be made to fail:
//   tree_work_victim copy|move|remove FOLDER NAME [FOLDER NAME]
// Ends with the errno of the work, 0 when it is done.
#include "helper/TreeWork.h"
#include "platform/plain/CopyMonitor.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {

helper::Item itemAt(const std::string &folder, const std::string &name)
{
    return {platform::UniqueDescriptor(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)), name, folder};
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4)
        return EINVAL;
    platform::CopyMonitor monitor;
    helper::TreeWork work(getuid(), monitor);
    const std::string verb = argv[1];
    const helper::Item from = itemAt(argv[2], argv[3]);
    if (verb == "remove")
        return work.remove(from);
    const helper::Item to = itemAt(argv[4], argv[5]);
    return verb == "copy" ? work.copy(from, to) : work.move(from, to);
}
