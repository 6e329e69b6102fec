"""The error that ends packaging."""


class Problem(Exception):
    """Something outside the scripts prevents a correct package; the text says what."""
