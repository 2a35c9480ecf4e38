// The calls of QuartzCore that we make, written down from its public documentation.
#pragma once

#import <Foundation/Foundation.h>

@interface CALayer : NSObject
@property CGRect frame;
@property CGFloat cornerRadius;
@property BOOL masksToBounds;
@end
