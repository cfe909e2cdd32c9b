#include "core/PublicServices.h"

namespace vantrell {

ServiceOrigins publicServices() {
    return {.reportService = "https://api.appstoreconnect.apple.com",
            .rateService = "https://open.er-api.com",
            .lookupService = "https://itunes.apple.com",
            .keyWebSite = "https://appstoreconnect.apple.com"};
}

}  // namespace vantrell
