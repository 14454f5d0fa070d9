/* A label over the home screen, a hook, a gesture listener, and what a switch in Settings does. */

#import <CoreFoundation/CoreFoundation.h>
#import <SpringBoard/SpringBoard.h>
#import <UIKit/UIKit.h>
#import <libactivator/libactivator.h>
#import <substrate.h>

/* A view with a variable of its own, in compiled code. */
@interface HelloLabel : UILabel {
  int greetings;
}
- (void)greet:(NSString *)text;
- (int)greetings;
@end

@implementation HelloLabel
- (void)greet:(NSString *)text {
  ++greetings;
  [self setText:text];
}
- (int)greetings {
  return greetings;
}
@end

static HelloLabel *label;

/* The listener: the gesture that is assigned to it in Settings greets in another language. */
@interface HelloListener : NSObject
@end

@implementation HelloListener
- (void)activator:(id)activator receiveEvent:(LAEvent *)event {
  [label greet:@"Buongiorno"];
  [event setHandled:YES];
}
@end

/* Called at the start and whenever the switch in Settings changes. */
static void showOrHide(CFNotificationCenterRef center, void *observer, NSString *name, const void *object, id info) {
  NSDictionary *settings =
      [NSDictionary dictionaryWithContentsOfFile:@"/var/mobile/Library/Preferences/com.example.hello.plist"];
  [label setHidden:[[settings objectForKey:@"hidden"] boolValue]];
}

/* The hook: the home screen launches as always, then gets a label of its own. */
static void (*launchedBefore)(id, SEL, id);

static void launched(id self, SEL selector, id application) {
  launchedBefore(self, selector, application);
  CGSize screen = [[UIScreen mainScreen] bounds].size;
  CGRect frame = {{0, screen.height - 160}, {screen.width, 30}};
  UIWindow *window = [[UIWindow alloc] initWithFrame:frame];
  label = [[HelloLabel alloc] initWithFrame:[window bounds]];
  [label setTextColor:[UIColor whiteColor]];
  [label setTextAlignment:1];
  [label greet:@"Hello"];
  [window addSubview:label];
  [window setUserInteractionEnabled:NO];
  [window setHidden:NO];
  [[LAActivator sharedInstance] registerListener:[HelloListener new] forName:@"com.example.hello"];
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &label, showOrHide,
                                  @"com.example.hello/changed", NULL, 0);
  showOrHide(NULL, NULL, nil, NULL, nil);
}

/* Runs when the library is loaded. */
@interface HelloStart : NSObject
@end

@implementation HelloStart
+ (void)load {
  MSHookMessageEx(objc_getClass("SpringBoard"), @selector(applicationDidFinishLaunching:),
                  (IMP)launched, (IMP *)&launchedBefore);
}
@end

/* What scripts and the console may read: `print [hello text]`. */
struct {
  const char *name;
  const char *type;
  void *address;
} exported_globals[] = {{"hello", "@", &label}, {NULL}};
