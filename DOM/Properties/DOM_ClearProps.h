#pragma once

#include "Utils/Public/Export.h"

namespace QN::DOM {

class Paragraph;
class Run;

/// Lets go of the run's style.
DOM_API void clearAllProps(Run& run);

/// Lets go of the styles of the paragraph, of its mark and of its runs. The place in a numbered list stays. A null run
/// fails the contract "plainPtr".
DOM_API void clearAllPropsExceptNumRef(Paragraph& paragraph);

/// As `clearAllPropsExceptNumRef`, and takes the paragraph out of its list.
DOM_API void clearAllProps(Paragraph& paragraph);

} // namespace QN::DOM
