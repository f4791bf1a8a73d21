#pragma once

namespace anniversaries {

/// What is celebrated: a birthday of the contact, the spouse or a child, or the wedding anniversary.
enum class Occasion { Birthday, Anniversary };

} // namespace anniversaries
