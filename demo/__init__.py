"""The program on a computer of its own, with the sample suite and its services: driven by itself or
by the person at the screen. The repository's root is where this is imported from."""
