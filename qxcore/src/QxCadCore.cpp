// Placeholder translation unit until the utility classes land.
