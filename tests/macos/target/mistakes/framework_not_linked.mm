// Refused: undefined symbol: OBJC_CLASS_.*SMAppService

#import <ServiceManagement/ServiceManagement.h>

int main() {
    return [[SMAppService mainAppService] registerAndReturnError:nullptr] != NO ? 0 : 1;
}
