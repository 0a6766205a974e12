#include "ui/IntroPage.h"

#include "view/Build.h"

namespace corvellane {

View introView()
{
    return column(0, Placement::centre,
        row(standardSpacing, gap(3), text("You will be guided through the steps necessary to use this software."),
            gap(3)),
        gap())
        .withPadding(onTop);
}

} // namespace corvellane
