"""The Python tests and their helpers, imported from the repository's root:

    /usr/bin/python3 -m unittest tests.e2e.start_test
"""
