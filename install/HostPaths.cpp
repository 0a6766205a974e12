#include "install/HostPaths.h"

#include "products/Product.h"

namespace corvellane {

HostPaths hostPathsOf(const Product& product)
{
    return {product.appCorvellane(), product.appSuppCorvellaneVideo(), product.appSuppCorvellane(),
        product.userAppSuppLR()};
}

} // namespace corvellane
