"""Why there is no package, in words for the person who asked for one."""


class Problem(Exception):
    """Something outside the scripts prevents a correct package."""
