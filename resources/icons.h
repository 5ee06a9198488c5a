// Resource IDs of the icons. Explorer shows the icon with the lowest ID as the program's own.
#pragma once

#define IDI_TESSERA 1

// Main toolbar and panel toolbar
#define IDI_OPEN 10
#define IDI_SAVE 11
#define IDI_SORT 12
#define IDI_OPTIONS 13
#define IDI_ASSIGN 14
#define IDI_DELETE 15

// The same, for buttons that are disabled
#define IDI_OPEN_DISABLED 20
#define IDI_SAVE_DISABLED 21
#define IDI_SORT_DISABLED 22
#define IDI_OPTIONS_DISABLED 23
#define IDI_ASSIGN_DISABLED 24
#define IDI_DELETE_DISABLED 25

// Rows of the command list
#define IDI_COMMENTBLOCK 30
#define IDI_HASKEY 31

// Column headers
#define IDI_ASCENDING 40
#define IDI_DESCENDING 41

// The all-keys button
#define IDI_ALLKEYS 50
