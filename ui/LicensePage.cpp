#include "ui/LicensePage.h"

#include "ui/Build.h"
#include "ui/PageTexts.h"

namespace corvellane {

View licenseView(const AttributedText& agreement)
{
    return holding(RichText{pageTitle(Page::license), &agreement});
}

} // namespace corvellane
