// Refused: '-registerWithError:' not found

#import <ServiceManagement/ServiceManagement.h>

bool registered() {
    return [[SMAppService mainAppService] registerWithError:nullptr] != NO;
}
