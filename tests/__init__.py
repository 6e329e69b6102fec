"""The Python tests and what they share. The repository's root is where they are imported from:

    python3 -m unittest tests.e2e.start_test
"""
