"""Local servers that replace the suite's services and a proxy before them."""
