// What the page of keys does in a browser that runs scripts. Without them all of it is there, too.
#pragma once

#include <string_view>

namespace tessera {

/// It searches both tables, marks what is found on the keyboards, and shows who has the key that is
/// pointed at, tapped or focused.
[[nodiscard]] std::string_view KeysPageScript();

}  // namespace tessera
