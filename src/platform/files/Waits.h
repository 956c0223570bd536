#pragma once

namespace platform {

/** Whether a write returns when the disk has it; when its bytes are on their way there, so that after a power cut the
   name never stands for an empty file; or when the system has it: sooner still, and enough for what nobody misses then.
 */
enum class Waits { ForTheDisk, ForItsBytes, ForTheSystem };

} // namespace platform
