"""What `atacar.py` is made of."""
