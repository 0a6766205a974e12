#include "ui/LicensePage.h"

#include "ui/PageTexts.h"
#include "view/Build.h"

namespace corvellane {

View licenseView(const rtf::AttributedText& agreement)
{
    return holding(RichText{pageTitle(Page::license), &agreement});
}

} // namespace corvellane
