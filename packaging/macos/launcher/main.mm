// The login item: starts the application that it lies in, says so in its environment, and ends.
#import <AppKit/AppKit.h>

namespace {

/// Barquell.app/Contents/Library/LoginItems/BarquellLauncher.app lies four folders deep.
NSURL *surroundingApplication() {
    NSURL *url = [[NSBundle mainBundle] bundleURL];
    for (int folder = 0; folder < 4; ++folder) {
        url = [url URLByDeletingLastPathComponent];
    }
    return url;
}

} // namespace

int main() {
    @autoreleasepool {
        // Barquell may be back already, with the windows of the last session; opened again it would show one.
        NSString *barquell = @"com.vexolith.barquell";
        if ([[NSRunningApplication runningApplicationsWithBundleIdentifier:barquell] count] > 0) {
            return 0;
        }
        NSWorkspaceOpenConfiguration *configuration = [NSWorkspaceOpenConfiguration configuration];
        [configuration setActivates:NO];
        [configuration setEnvironment:@{@"FromLoginItem" : @"1"}];
        __block int status = 0;
        dispatch_semaphore_t opened = dispatch_semaphore_create(0);
        [[NSWorkspace sharedWorkspace]
            openApplicationAtURL:surroundingApplication()
                   configuration:configuration
               completionHandler:^(NSRunningApplication *application, NSError *error) {
                 status = application && !error ? 0 : 1;
                 dispatch_semaphore_signal(opened);
               }];
        dispatch_semaphore_wait(opened, DISPATCH_TIME_FOREVER);
        return status;
    }
}
