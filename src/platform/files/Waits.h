#pragma once

namespace platform {

/** Whether a write returns when the disk has it; when its bytes are there, so that after a power cut the name never
   stands for an empty file; when they are on their way, which says the same where a file system writes contents before
   names (ext4) and costs no waiting; or when the system has it, which is enough for what nobody misses then. */
enum class Waits { ForTheDisk, ForItsBytes, ForNothing, ForTheSystem };

} // namespace platform
