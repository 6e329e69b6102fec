"""Servers on this machine that stand in for the suite's services and for a proxy before them."""
