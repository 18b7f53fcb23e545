// Refused: conversion from nullable pointer

#import <Foundation/Foundation.h>

void forget() {
    NSString* _Nullable const domain = [[NSBundle mainBundle] bundleIdentifier];
    [[NSUserDefaults standardUserDefaults] removePersistentDomainForName:domain];
}
